// The DLL under script clients. The script host ends with 0 whatever happens, so that a script
// shows by its last line and by its own exit code that it came to its end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <sstream>
#include <string>
#include <vector>

#include "addin/handle.h"
#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/component_dll.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsSupersetOf;

constexpr DWORD scriptsOwnExitCode = 23;
constexpr DWORD waitMilliseconds = 60000;

std::wstring environmentText(const wchar_t* name) {
  std::array<wchar_t, 1024> text{};
  GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size()));
  return text.data();
}

std::wstring commandFor(const std::wstring& script) {
  std::array<wchar_t, MAX_PATH> system{};
  GetSystemDirectoryW(system.data(), MAX_PATH);
  return L"\"" + std::wstring(system.data()) + L"\\cscript.exe\" //nologo \"" +
         environmentText(L"PELORIN_ROOT") + L"\\tests\\windows\\script\\" + script + L"\"";
}

struct Outcome {
  DWORD exitCode = STILL_ACTIVE;
  std::vector<std::string> lines;
  std::vector<std::string> boxes;
};

// A pipe whose writing end a child inherits.
struct Pipe {
  Pipe() : read(nullptr), write(nullptr) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE in = nullptr;
    HANDLE out = nullptr;
    CreatePipe(&in, &out, &inherited, 0);
    SetHandleInformation(in, HANDLE_FLAG_INHERIT, 0);
    read = Handle(in);
    write = Handle(out);
  }
  Handle read;
  Handle write;
};

std::string readToEnd(const Handle& pipe) {
  std::string text;
  std::array<char, 4096> block{};
  DWORD count = 0;
  while (ReadFile(pipe.get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr) &&
         count > 0) {
    text.append(block.data(), count);
  }
  return text;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    while (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

Outcome runScript(const std::wstring& script) {
  std::wstring command = commandFor(script);
  Pipe output;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = output.write.get();
  start.hStdError = output.write.get();
  PROCESS_INFORMATION process{};
  Outcome run;
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                      &process)) {
    ADD_FAILURE() << "cannot start " << toUtf8(command);
    return run;
  }
  const Handle program(process.hProcess);
  const Handle thread(process.hThread);
  const BoxWatcher watcher(process.dwProcessId);
  output.write = Handle(nullptr);
  run.lines = linesOf(readToEnd(output.read));
  WaitForSingleObject(program.get(), waitMilliseconds);
  GetExitCodeProcess(program.get(), &run.exitCode);
  run.boxes = watcher.texts();
  return run;
}

struct ScriptClient : ::testing::Test {
  const ComponentDll& dll = ComponentDll::instance();
  ScriptClient() { EXPECT_EQ(dll.registerServer(), S_OK); }
  ~ScriptClient() override { dll.unregisterServer(); }
};

TEST_F(ScriptClient, UsesEveryMember) {
  const Outcome run = runScript(L"every_member.vbs");
  ASSERT_FALSE(run.lines.empty());
  EXPECT_EQ(run.lines.back(), "passed");
  EXPECT_EQ(run.exitCode, scriptsOwnExitCode);
  EXPECT_THAT(run.lines, IsSupersetOf({"in design 0 0", "component type 91", "text 3575",
                                       "sql exec TA_FetchSummary", "closed"}));
}

TEST_F(ScriptClient, RefusedPermissionShowsText3575) {
  const Outcome run = runScript(L"every_member.vbs");
  EXPECT_THAT(run.boxes, ElementsAre("script text 3575"));
}

TEST_F(ScriptClient, GetsOrdinaryErrorsForWrongUse) {
  const Outcome run = runScript(L"wrong_use.vbs");
  EXPECT_THAT(run.lines, ElementsAre("passed"));
  EXPECT_EQ(run.exitCode, scriptsOwnExitCode);
}

}  // namespace
}  // namespace pelorin::test
