// Automation needs an apartment.
#include <gmock/gmock.h>

#include "host/windows_api.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  OleInitialize(nullptr);
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
