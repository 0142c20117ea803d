// The error report: one line of the log and one box, with the same text.
#include <gmock/gmock.h>

#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::Pair;

class ReportTest : public testing::Test {
 protected:
  Surroundings surroundings;
  FakeEnvironment& environment = surroundings.environment;
  RecordingScreen& screen = surroundings.screen;
  Module1& module = surroundings.module;
  const RunTimeError error{-2147217900, "Invalid object name", 123};
};

TEST_F(ReportTest, TextIsProcedureLineAndDescription) {
  module.ReportError("Module1.GetEventDescription", error);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Module1.GetEventDescription: Line: 123 :Invalid object name"));
}

TEST_F(ReportTest, UnknownLineIsZero) {
  module.ReportError("frmTASummary.Form_Load", RunTimeError(13, "Type mismatch"));
  EXPECT_THAT(screen.boxTexts(), ElementsAre("frmTASummary.Form_Load: Line: 0 :Type mismatch"));
}

TEST_F(ReportTest, EmptyDescriptionLeavesTheColonAlone) {
  module.ReportError("frmTASummary.Form_Load", RunTimeError(1, "", 2));
  EXPECT_THAT(screen.boxTexts(), ElementsAre("frmTASummary.Form_Load: Line: 2 :"));
}

TEST_F(ReportTest, BoxIsCriticalWithOk) {
  module.ReportError("Module1.GetRTNEvent", error);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Critical);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
}

TEST_F(ReportTest, LogLineIsDateTimeAndTheSameTextInTheComponentsFolder) {
  module.ReportError("Module1.GetRTNEvent", error);
  EXPECT_THAT(environment.lines,
              ElementsAre(Pair(
                  "C:\\Component\\Pelorin.txt",
                  "21.11.2026 08:30:00: Module1.GetRTNEvent: Line: 123 :Invalid object name")));
}

TEST_F(ReportTest, LogIsWrittenBeforeTheBoxIsShown) {
  std::size_t linesDuringBox = 0;
  screen.duringBox = [&](const BoxRequest&) { linesDuringBox = environment.lines.size(); };
  module.ReportError("Module1.GetRTNEvent", error);
  EXPECT_EQ(linesDuringBox, 1U);
}

TEST_F(ReportTest, TwoErrorsGiveTwoLines) {
  module.ReportError("Module1.GetRTNEvent", error);
  module.ReportError("Module1.LoadFilterList", error);
  ASSERT_EQ(environment.lines.size(), 2U);
  EXPECT_THAT(environment.lines[0].second, testing::HasSubstr("GetRTNEvent"));
  EXPECT_THAT(environment.lines[1].second, testing::HasSubstr("LoadFilterList"));
}

TEST_F(ReportTest, LineBreaksOfADescriptionDoNotBreakTheLogLine) {
  module.ReportError("Module1.GetRTNEvent", RunTimeError(1, "first\r\nsecond", 5));
  EXPECT_EQ(environment.lines[0].second,
            "21.11.2026 08:30:00: Module1.GetRTNEvent: Line: 5 :first  second");
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Module1.GetRTNEvent: Line: 5 :first\r\nsecond"));
}

TEST_F(ReportTest, FolderWithoutWriteRightsStillShowsTheOneBox) {
  environment.canWrite = false;
  module.ReportError("Module1.GetRTNEvent", error);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Module1.GetRTNEvent: Line: 123 :Invalid object name"));
  EXPECT_TRUE(environment.lines.empty());
}

class LostEnvironment : public FakeEnvironment {
 public:
  std::string componentFolder() const override { throw RunTimeError(76, "Path not found"); }
  std::string privateProfileString(const std::string&, const std::string&, const std::string&,
                                   unsigned, const std::string&) const override {
    throw RunTimeError(53, "File not found");
  }
};

TEST_F(ReportTest, UnknownFolderStillShowsTheOneBox) {
  LostEnvironment lost;
  Module1(screen, lost).ReportError("Module1.GetRTNEvent", error);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Module1.GetRTNEvent: Line: 123 :Invalid object name"));
}

TEST_F(ReportTest, ErrorsOfReadingASettingAreIgnored) {
  LostEnvironment lost;
  EXPECT_EQ(Module1(screen, lost).ReadIniValue("a.ini", "CCTV", "PTZ"), "NOTINITIALIZED");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(ReportTest, BoxThatCannotBeShownLetsNothingOut) {
  screen.duringBox = [](const BoxRequest&) { throw std::bad_alloc(); };
  EXPECT_NO_THROW(module.ReportError("Module1.GetRTNEvent", error));
  EXPECT_EQ(environment.lines.size(), 1U);
}

TEST_F(ReportTest, InformationHasItsIconAndOk) {
  module.inform("Please select a location.");
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0].text, "Please select a location.");
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Information);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
  EXPECT_TRUE(environment.lines.empty());
}

}  // namespace
}  // namespace pelorin::test
