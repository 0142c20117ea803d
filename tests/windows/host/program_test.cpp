// The reference host as a program: options, boxes, output.
#include "tests/windows/host/program.h"

#include <gmock/gmock.h>

#include "test_paths.h"

namespace pelorin::test {
namespace {

using testing::HasSubstr;

constexpr const wchar_t* mainClass = L"PelorinHostMain";
constexpr const wchar_t* boxClass = L"#32770";

void pressOk(HWND box) {
  PostMessageW(box, WM_COMMAND, IDOK, 0);
}

std::string quoted(const std::string& option, const TemporaryFile& file) {
  return option + " \"" + file.path() + "\"";
}

TEST(HostProgram, HelpIsPrinted) {
  const Ended ended = Program("--help").waitForEnd();
  EXPECT_EQ(ended.code, 0U);
  EXPECT_THAT(ended.output, HasSubstr("--database <file>"));
}

TEST(HostProgram, AnUnknownOptionOfAPlayedRequestIsPrinted) {
  const Ended ended = Program("--play --backwards").waitForEnd();
  EXPECT_EQ(ended.code, 2U);
  EXPECT_THAT(ended.output, HasSubstr("Unknown option: --backwards"));
}

TEST(HostProgram, AnUnknownOptionIsShownInABox) {
  Program program("--backwards");
  const HWND box = program.waitForWindow(boxClass, "Pelorin Host");
  EXPECT_THAT(Program::labels(box), HasSubstr("Unknown option: --backwards"));
  pressOk(box);
  EXPECT_EQ(program.waitForEnd().code, 2U);
}

TEST(HostProgram, AFileThatIsNoDatabaseIsShownInABoxAndLeftAlone) {
  const TemporaryFile file("memo.site", "Buy milk.");
  Program program(quoted("--database", file));
  const HWND box = program.waitForWindow(boxClass, "Pelorin Host");
  EXPECT_THAT(Program::labels(box), HasSubstr("memo.site"));
  pressOk(box);
  EXPECT_EQ(program.waitForEnd().code, 1U);
  EXPECT_EQ(file.content(), "Buy milk.");
}

TEST(HostProgram, AMissingComponentIsSaidByThePlayedRequest) {
  const Ended ended = Program("--play --component Z:\\nowhere\\Pelorin.dll").waitForEnd();
  EXPECT_EQ(ended.code, 1U);
  EXPECT_THAT(ended.output, HasSubstr("Z:\\nowhere\\Pelorin.dll"));
}

TEST(HostProgram, APlayedRequestOverAServerWithoutTheDemonstrationSiteSaysSo) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "no ODBC here";
  const Ended ended =
      Program("--play --odbc \"Driver=" PELORIN_SQLITE_ODBC ";Database=:memory:\"").waitForEnd();
  EXPECT_EQ(ended.code, 1U);
  EXPECT_THAT(ended.output, HasSubstr("FAILED: The database does not hold the demonstration site"));
}

TEST(HostProgram, AMissingComponentIsShownInABoxAndTheHostStaysUp) {
  const TemporaryFile file("stays.site");
  Program program(quoted("--database", file) + " --component Z:\\nowhere\\Pelorin.dll");
  const HWND window = program.waitForWindow(mainClass);
  const HWND button = FindWindowExW(window, nullptr, L"Button", nullptr);
  PostMessageW(button, BM_CLICK, 0, 0);
  const HWND box = program.waitForWindow(boxClass, "Pelorin Host");
  EXPECT_THAT(Program::labels(box), HasSubstr("Z:\\nowhere\\Pelorin.dll"));
  pressOk(box);
  EXPECT_TRUE(IsWindow(window));
  PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(program.waitForEnd().code, 0U);
}

TEST(HostProgram, ASecondStartSaysSoAndEnds) {
  const TemporaryFile file("first.site");
  Program first(quoted("--database", file));
  const HWND window = first.waitForWindow(mainClass);
  Program second(quoted("--database", file));
  const HWND box = second.waitForWindow(boxClass, "Pelorin Host");
  EXPECT_THAT(Program::labels(box), HasSubstr("running already"));
  pressOk(box);
  EXPECT_EQ(second.waitForEnd().code, 3U);
  PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(first.waitForEnd().code, 0U);
}

}  // namespace
}  // namespace pelorin::test
