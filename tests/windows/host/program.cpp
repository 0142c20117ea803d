#include "tests/windows/host/program.h"

#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "driver/find_window.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"

namespace pelorin::test {

namespace {

std::wstring variable(const wchar_t* name) {
  std::array<wchar_t, 1024> value{};
  GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  return value.data();
}

constexpr DWORD patienceMilliseconds = 60000;

}  // namespace

TemporaryFile::TemporaryFile(const std::string& name)
    : path_(toUtf8(variable(L"TEMP")) + "\\" + name) {
  DeleteFileW(toWide(path_).c_str());
}

TemporaryFile::TemporaryFile(const std::string& name, const std::string& content)
    : TemporaryFile(name) {
  std::ofstream(path_, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile() {
  DeleteFileW(toWide(path_).c_str());
}

std::string TemporaryFile::content() const {
  std::ifstream file(path_, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Program::Program(const std::string& arguments) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE write = nullptr;
  CreatePipe(&read_, &write, &inherited, 0);
  SetHandleInformation(read_, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = write;
  start.hStdError = write;
  const std::wstring program = variable(L"PELORIN_DIST") + L"\\PelorinHost.exe";
  std::wstring line = L"\"" + program + L"\" " + toWide(arguments);
  const BOOL made = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                   nullptr, &start, &process_);
  CloseHandle(write);
  if (made == FALSE) throw std::runtime_error("cannot start " + toUtf8(program));
}

Program::~Program() {
  TerminateProcess(process_.hProcess, 99);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  CloseHandle(read_);
}

HWND Program::waitForWindow(const wchar_t* className, const char* title) const {
  return driver::waitFor(toUtf8(className), [&] {
    return driver::findTopLevel([&](HWND window) {
      return driver::processOf(window) == process_.dwProcessId && driver::isShown(window) &&
             driver::classOf(window) == className &&
             (title == nullptr || driver::textOf(window) == title);
    });
  });
}

std::string Program::labels(HWND window) {
  std::string texts;
  driver::findChild(window, [&](HWND child) {
    texts += driver::textOf(child) + "\n";
    return false;
  });
  return texts;
}

Ended Program::waitForEnd() {
  Ended ended;
  std::array<char, 4096> part{};
  DWORD read = 0;
  while (ReadFile(read_, part.data(), static_cast<DWORD>(part.size()), &read, nullptr) != FALSE) {
    ended.output.append(part.data(), read);
  }
  if (WaitForSingleObject(process_.hProcess, patienceMilliseconds) != WAIT_OBJECT_0) {
    throw std::runtime_error("the host does not end");
  }
  GetExitCodeProcess(process_.hProcess, &ended.code);
  return ended;
}

}  // namespace pelorin::test
