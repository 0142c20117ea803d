#include "host/window/output.h"

#include "host/window/window.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

// A program with windows is given no console of its own; it writes to what it inherited, else to
// the console it was started from.
HANDLE standardHandle(DWORD which) {
  HANDLE handle = GetStdHandle(which);
  if (handle != nullptr && handle != INVALID_HANDLE_VALUE) return handle;
  static const BOOL attached = AttachConsole(ATTACH_PARENT_PROCESS);
  return attached ? GetStdHandle(which) : nullptr;
}

void writeLine(DWORD which, const std::string& text) {
  const HANDLE handle = standardHandle(which);
  if (handle == nullptr || handle == INVALID_HANDLE_VALUE) return;
  const std::string line = text + "\r\n";
  DWORD written = 0;
  WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

}  // namespace

void printLine(const std::string& text) {
  writeLine(STD_OUTPUT_HANDLE, text);
}

void printError(const std::string& text) {
  writeLine(STD_ERROR_HANDLE, text);
}

void showError(const std::string& text) {
  MessageBoxW(nullptr, toWide(text).c_str(), programTitle, MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
}

}  // namespace pelorin::host
