// The main program of tests that open windows. Where the system has no device contexts the program
// says it and ends with the code for "skipped".
#include <gmock/gmock.h>
#include <ole2.h>
#include <windows.h>

#include <iostream>

#include "tests/windows/support/device_contexts.h"

namespace {

constexpr int skipped = 77;

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!pelorin::test::deviceContextsWork()) {
    std::cout << "this system gives the program no device contexts\n";
    return skipped;
  }
  // Automation needs an apartment.
  OleInitialize(nullptr);
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
