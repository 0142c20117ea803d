// A save that finds its connection lost ends there, with one report.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

class LostWhileSavingTest : public EditorTest {
 protected:
  void prepare() {
    openEditor();
    addLocations(2);
    tickFilter(0);
    checkEvents({1, 2});
    control<TabControl>("SSTab1").setTab(1);
    combo("cmbCCTVActions").userSelect(1);
    control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
    journal.clear();
  }

  const std::string lookUp =
      "select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = 5001";
};

TEST_F(LostWhileSavingTest, TheLookUpThatNoticedItIsTheLastStatement) {
  prepare();
  database->lose(lookUp);
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(database->statements(), ElementsAre(StartsWith("exec CCTV_Insert_TA "), lookUp));
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("Module1.GetRTNEvent: Line: ")));
  EXPECT_THAT(journal.of("host: LogEvent"), SizeIs(1));
}

TEST_F(LostWhileSavingTest, AnyOtherErrorOfTheLookUpLetsTheSaveGoOn) {
  prepare();
  database->fail(lookUp);
  EXPECT_TRUE(editor->SaveTriggerAction());
  EXPECT_THAT(journal.of("host: LogEvent"), SizeIs(4));
}

}  // namespace
}  // namespace pelorin::test
