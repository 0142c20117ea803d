// Texts, permission and settings, as every window asks for them.
#include "common/module1.h"

#include <gmock/gmock.h>

#include "base/current_error.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

class Module1Test : public testing::Test {
 protected:
  Surroundings surroundings;
  RecordingServices& services = *surroundings.services;
  RecordingScreen& screen = surroundings.screen;
  Module1& module = surroundings.module;
  const Journal& journal = surroundings.journal;
};

TEST_F(Module1Test, TextWithoutSubstitutionsComesFromGetResourceString) {
  services.texts[1677] = "Call camera";
  EXPECT_EQ(module.GRS(1677), "Call camera");
  EXPECT_THAT(journal.lines(), ElementsAre("host: GetResourceString(1677)"));
}

TEST_F(Module1Test, TextWithSubstitutionsComesFromGRSWithAllNine) {
  EXPECT_EQ(module.GRS(2835, {"one", "two"}), "#2835:one");
  EXPECT_THAT(journal.lines(), ElementsAre("host: GRS(2835, one, two, , , , , , , )"));
}

TEST_F(Module1Test, EmptyFirstSubstitutionMeansNone) {
  module.GRS(2835, {"", "two"});
  EXPECT_THAT(journal.lines(), ElementsAre("host: GetResourceString(2835)"));
}

TEST_F(Module1Test, FailingTextIsEmptyAndReportedUnderItsOldName) {
  services.failing = {"GetResourceString"};
  EXPECT_EQ(module.GRS(1677), "");
  EXPECT_THAT(screen.boxTexts(), ElementsAre(MatchesRegex("MPublic: GRS: Line: [1-9][0-9]* "
                                                          ":GetResourceString failed")));
}

TEST_F(Module1Test, TextWithoutServicesObjectIsEmptyAndReported) {
  module.setNTConnection(nullptr);
  EXPECT_EQ(module.GRS(1677), "");
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre(MatchesRegex("MPublic: GRS: Line: [1-9][0-9]* "
                                       ":Object variable or With block variable not set")));
}

TEST_F(Module1Test, PermissionIsTheHostsAnswerForTypeAndKey) {
  EXPECT_TRUE(module.MyPermissionGranted(91, "Pelorin - Use"));
  services.permitted = false;
  EXPECT_FALSE(module.MyPermissionGranted(91, "Pelorin - Use"));
  EXPECT_THAT(journal.lines(), ElementsAre("host: Security(91, Pelorin - Use)",
                                           "host: Security(91, Pelorin - Use)"));
}

TEST_F(Module1Test, FailingPermissionIsRefusedAndReported) {
  services.failing = {"Security"};
  EXPECT_FALSE(module.MyPermissionGranted(91, "Pelorin - Use"));
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre(MatchesRegex("Module1.MyPermissionGranted: Line: [1-9][0-9]* "
                                       ":Security failed")));
}

TEST_F(Module1Test, SettingOfAMissingFileIsNotInitialised) {
  EXPECT_EQ(module.ReadIniValue("C:\\CCTV\\A.INI", "CCTV", "PTZ"), "NOTINITIALIZED");
}

TEST_F(Module1Test, SettingIsReadFromFileSectionAndKey) {
  surroundings.environment.settings["C:\\CCTV\\A.INI|CCTV|PTZ"] = "yes";
  EXPECT_EQ(module.ReadIniValue("C:\\CCTV\\A.INI", "CCTV", "PTZ"), "yes");
  EXPECT_EQ(module.ReadIniValue("C:\\CCTV\\A.INI", "CCTV", "Other"), "NOTINITIALIZED");
}

TEST_F(Module1Test, EmptySettingIsEmpty) {
  surroundings.environment.settings["A.INI|CCTV|PTZ"] = "";
  EXPECT_EQ(module.ReadIniValue("A.INI", "CCTV", "PTZ"), "");
}

TEST_F(Module1Test, SettingHasAtMost200Characters) {
  surroundings.environment.settings["A.INI|CCTV|PTZ"] = std::string(300, 'x');
  EXPECT_EQ(module.ReadIniValue("A.INI", "CCTV", "PTZ"), std::string(200, 'x'));
}

TEST_F(Module1Test, CctvActionsHaveTheirTexts) {
  EXPECT_EQ(module.GetCCTVActionName(1), "#1677");
  EXPECT_EQ(module.GetCCTVActionName(2), "#1675");
  EXPECT_EQ(module.GetCCTVActionName(3), "#1821");
}

TEST_F(Module1Test, UnknownCctvActionsHaveNoTextAndAskNobody) {
  for (std::int16_t action : {std::int16_t{0}, std::int16_t{4}, std::int16_t{-1}}) {
    EXPECT_EQ(module.GetCCTVActionName(action), "");
  }
  EXPECT_TRUE(journal.lines().empty());
}

TEST_F(Module1Test, ReferencesSetAgainAreUsedFromTheNextCallOn) {
  Journal otherJournal;
  const auto other = std::make_shared<RecordingServices>(otherJournal);
  other->texts[1677] = "other";
  module.setNTConnection(other);
  EXPECT_EQ(module.GRS(1677), "other");
  EXPECT_TRUE(journal.lines().empty());
}

TEST_F(Module1Test, MissingReferencesAreErrorsWithTheCallersLine) {
  module.setNTConnection(nullptr);
  module.setDBConnection(nullptr);
  std::uint32_t line = 0;
  const auto services91 = errorOf([&] {
    line = __LINE__ + 1;
    module.NTConnection();
  });
  EXPECT_EQ(services91->number(), 91);
  EXPECT_EQ(services91->line(), line);
  const auto database91 = errorOf([&] {
    line = __LINE__ + 1;
    module.DBConnection();
  });
  EXPECT_EQ(database91->number(), 91);
  EXPECT_EQ(database91->line(), line);
}

TEST(DeviceClassIdFromName, KnowsTheThreeNamesInAnyCase) {
  EXPECT_EQ(DeviceClassIdFromName("CCTV"), 999);
  EXPECT_EQ(DeviceClassIdFromName("cctv"), 999);
  EXPECT_EQ(DeviceClassIdFromName("DVR"), 1);
  EXPECT_EQ(DeviceClassIdFromName("dvr"), 1);
  EXPECT_EQ(DeviceClassIdFromName("DVR / NVR"), 1);
  EXPECT_EQ(DeviceClassIdFromName("dvr / nvr"), 1);
}

TEST(DeviceClassIdFromName, EveryOtherNameIsZero) {
  for (const char* name : {"", "CCTV Switcher", "CCTVX", "DVR/NVR", "DVR /  NVR", " CCTV", "NVR"}) {
    EXPECT_EQ(DeviceClassIdFromName(name), 0) << name;
  }
}

TEST(FirstWord, IsTheTextBeforeTheFirstBlank) {
  EXPECT_EQ(FirstWord("1.2.3 - Front door"), "1.2.3");
  EXPECT_EQ(FirstWord("Front door"), "Front");
}

TEST(FirstWord, WithoutBlankIsTheWholeText) {
  EXPECT_EQ(FirstWord("1.2.3"), "1.2.3");
  EXPECT_EQ(FirstWord(""), "");
  EXPECT_EQ(FirstWord("one\ttwo"), "one\ttwo");
}

TEST(FirstWord, OfALeadingBlankIsEmpty) {
  EXPECT_EQ(FirstWord(" door"), "");
}

}  // namespace
}  // namespace pelorin::test
