// Every statement and every fetch of the editor's journeys fails, alone or with all after it, each
// in a journey of its own over a fresh site.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/faults/editor_scripts.h"

namespace pelorin::test {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class EditorFaults : public ScriptWithFaults {
 protected:
  // What a run without a fault adds to the tables, and how many acts it takes up to there.
  void SetUp() override {
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(0);
    script().open(journey);
    actsToOpen = journey.database->acts();
    script().act(journey);
    journey.press("cmdApply");
    acts = journey.actsBeforeReload();
    whole = added(before, journey.rows());
    ASSERT_TRUE(journey.screen.boxes.empty());
    ASSERT_FALSE(whole.empty());
  }

  static void expectReports(const EditorJourney& journey) {
    int broken = 0;
    for (const BoxRequest& box : journey.screen.boxes) {
      if (box.icon != BoxIcon::Critical || countsReports(box)) continue;
      if (box.text.ends_with(" :The connection is broken.")) {
        ++broken;
        EXPECT_THAT(box.text, AnyOf(StartsWith("frmTriggerAction."), StartsWith("frmTASummary."),
                                    StartsWith("Module1."),
                                    StartsWith("Error: LoadEventsByFilterType(): : ")));
        EXPECT_THAT(box.text, testing::Not(HasSubstr(": Line: 0 :")));
      } else {
        // A list that could not be filled has nothing to select.
        EXPECT_THAT(box.text, HasSubstr("Nothing is selected: "));
      }
    }
    expectCounts(broken, journey.screen.boxes, journey.environment.lines.size());
  }

  SiteRows whole;
  int acts = 0;
  int actsToOpen = 0;
};

TEST_P(EditorFaults, AreReportedAndLeaveNoWrongRow) {
  for (int failing = 1; failing <= acts; ++failing) {
    SCOPED_TRACE("act " + std::to_string(failing));
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(failing, lasting());
    script().open(journey);
    ASSERT_TRUE(journey.isOpen("frmTriggerAction"));
    script().act(journey);
    journey.press("cmdApply");
    EXPECT_TRUE(journey.isOpen("frmTriggerAction"));
    expectReports(journey);
    expectRowsOfScript(script(), whole, added(before, journey.rows()));
    if (HasFailure()) return;
  }
}

// A trigger that could not be read is not written, whatever is tried; one that could is written
// when the connection is back.
TEST_P(EditorFaults, WhileOpeningAnEditedTriggerLetItBeSavedWholeOrNotAtAll) {
  if (!script().edits) return;
  int refused = 0;
  for (int failing = 1; failing <= actsToOpen; ++failing) {
    SCOPED_TRACE("act " + std::to_string(failing));
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(failing, lasting());
    script().open(journey);
    const bool halfRead = journey.editor().state().halfRead;
    script().act(journey);
    journey.press("cmdApply");
    const SiteRows written = added(before, journey.rows());
    EXPECT_TRUE(written.empty() || written == whole);
    EXPECT_TRUE(written.empty() || !halfRead);
    if (halfRead) ++refused;
  }
  EXPECT_GT(refused, 0);
}

PELORIN_SCRIPTS_WITH_FAULTS(EditorFaults);

}  // namespace
}  // namespace pelorin::test
