// The main program of tests that open windows. Wine's emulation of 32-bit Windows gives programs no
// device contexts: combo boxes cannot be made there, and edit boxes with text end the program.
// Where that is so the program says it and ends with the code for "skipped".
#include <gmock/gmock.h>
#include <ole2.h>
#include <windows.h>

#include <iostream>

namespace {

constexpr int skipped = 77;

bool deviceContextsWork() {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, GetStockObject(DEFAULT_GUI_FONT));
  ReleaseDC(nullptr, screen);
  return before != nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (!deviceContextsWork()) {
    std::cout << "this system gives the program no device contexts\n";
    return skipped;
  }
  // Automation needs an apartment.
  OleInitialize(nullptr);
  const int result = RUN_ALL_TESTS();
  OleUninitialize();
  return result;
}
