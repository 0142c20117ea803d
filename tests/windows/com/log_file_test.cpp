// The log file belongs to nobody between two lines: an administrator can move it away at any time.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "addin/handle.h"
#include "addin/windows_environment.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

struct LogFileTest : ::testing::Test {
  LogFileTest() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetTempPathW(MAX_PATH, folder.data());
    file = std::wstring(folder.data()) + L"pelorin-log-" + std::to_wstring(GetCurrentProcessId()) +
           L".txt";
    DeleteFileW(file.c_str());
  }
  ~LogFileTest() override { DeleteFileW(file.c_str()); }

  bool append(const std::string& line) { return environment.appendLine(toUtf8(file), line); }
  // Nobody, we included, has the file open.
  bool belongsToNobody() const {
    return static_cast<bool>(Handle(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                                nullptr, OPEN_EXISTING, 0, nullptr)));
  }

  WindowsEnvironment environment;
  std::wstring file;
};

TEST_F(LogFileTest, IsClosedAfterEachLine) {
  for (const char* line : {"one", "two", "three"}) {
    EXPECT_TRUE(append(line));
    EXPECT_TRUE(belongsToNobody()) << line;
  }
}

TEST_F(LogFileTest, ThatWasMovedAwayStartsAnew) {
  ASSERT_TRUE(append("old"));
  const std::wstring moved = file + L".old";
  ASSERT_NE(MoveFileW(file.c_str(), moved.c_str()), FALSE);
  EXPECT_TRUE(append("new"));
  EXPECT_EQ(environment.readFile(toUtf8(file)), "new\r\n");
  EXPECT_EQ(environment.readFile(toUtf8(moved)), "old\r\n");
  DeleteFileW(moved.c_str());
}

TEST_F(LogFileTest, ThatSomebodyHoldsForHimselfTakesNoLineAndWorksAgainAfterwards) {
  ASSERT_TRUE(append("one"));
  {
    const Handle held(
        CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    EXPECT_FALSE(append("two"));
  }
  EXPECT_TRUE(append("three"));
  EXPECT_EQ(environment.readFile(toUtf8(file)), "one\r\nthree\r\n");
}

}  // namespace
}  // namespace pelorin::test
