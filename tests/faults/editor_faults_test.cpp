// Every statement and every fetch of the editor's journeys fails once, each in a journey of its own
// over a fresh site.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

struct Journey {
  std::string name;
  std::function<void(EditorJourney&)> open;  // to the editor
  std::function<void(EditorJourney&)> act;   // in the editor, up to the save
  bool edits = false;
  bool raisesAlarm = false;  // and looks up between its rows what returns to normal
};

std::ostream& operator<<(std::ostream& out, const Journey& journey) {
  return out << journey.name;
}

void chooseDoorsAndEvents(EditorJourney& journey) {
  journey.tickFilter("External Events");
  journey.checkEvent(5001);
  journey.checkEvent(5003);
  for (const std::string door : {"001.01.007.D01", "001.01.007.D02"}) {
    journey.editor().addLocation(door, door + " - Door", door);
  }
  journey.showTab(1);
}

const std::vector<Journey> journeys = {
    {"addCctv", [](EditorJourney& j) { j.add(); }, chooseDoorsAndEvents},
    {"addCctvWithReturnToNormal", [](EditorJourney& j) { j.add(); },
     [](EditorJourney& j) {
       chooseDoorsAndEvents(j);
       j.choose("cmbCCTVActions", "Raise alarm");
       j.inEditor<TextBox>("txtCCTVAlarm").setText("21");
       j.inEditor<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
     },
     false, true},
    {"addDvr", [](EditorJourney& j) { j.add(); },
     [](EditorJourney& j) {
       chooseDoorsAndEvents(j);
       j.choose("cmbActionDeviceClass", "DVR / NVR");
     }},
    {"editCctv", [](EditorJourney& j) { j.edit("CCTV", 4); },
     [](EditorJourney& j) {
       j.showTab(1);
       j.choose("cmbCCTVMonitors", "2");
     },
     true},
    {"editDvr", [](EditorJourney& j) { j.edit("DVR / NVR", 3); },
     [](EditorJourney& j) {
       j.showTab(1);
       j.choose("cmbDVRRecordRate", "60.0 ips");
     },
     true}};

class EditorFaults : public ::testing::TestWithParam<Journey> {
 protected:
  // What a run without a fault adds to the tables, and how many acts it takes up to there.
  void SetUp() override {
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(0);
    GetParam().open(journey);
    actsToOpen = journey.database->acts();
    GetParam().act(journey);
    journey.press("cmdApply");
    acts = journey.actsBeforeReload();
    whole = added(before, journey.rows());
    ASSERT_TRUE(journey.screen.boxes.empty());
    ASSERT_FALSE(whole.empty());
  }

  // New rows are those of the whole journey, in its order. Only a failing look-up leaves one out;
  // after a failing row none follows.
  void expectPartOfWhole(const SiteRows& rows) const {
    for (const auto& [table, written] : rows) {
      ASSERT_TRUE(whole.contains(table)) << table;
      auto next = whole.at(table).begin();
      const auto end = whole.at(table).end();
      for (const std::string& row : written) {
        const auto found = std::find_if(next, end, [&](const std::string& expected) {
          return comparable(expected) == comparable(row);
        });
        ASSERT_NE(found, end) << row;
        EXPECT_TRUE(GetParam().raisesAlarm || found == next) << row;
        next = found + 1;
      }
    }
  }

  // Without the number that the database gave the row, and of an alarm without camera, monitor and
  // preset: it does not use them, and takes what lists there are.
  static std::string comparable(const std::string& row) {
    std::istringstream cells(row);
    std::string text;
    std::string cell;
    for (int column = 0; std::getline(cells, cell, '|'); ++column) {
      const bool unused = GetParam().raisesAlarm && column >= 5 && column <= 7;
      if (column > 0 && !unused) text += cell + '|';
    }
    return text;
  }

  static void expectReports(const EditorJourney& journey) {
    int broken = 0;
    for (const BoxRequest& box : journey.screen.boxes) {
      if (box.icon != BoxIcon::Critical) continue;
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
    EXPECT_EQ(broken, 1);
    EXPECT_EQ(static_cast<std::size_t>(std::count_if(
                  journey.screen.boxes.begin(), journey.screen.boxes.end(),
                  [](const BoxRequest& box) { return box.icon == BoxIcon::Critical; })),
              journey.environment.lines.size())
        << "a line in the log for each report";
  }

  SiteRows whole;
  int acts = 0;
  int actsToOpen = 0;
};

TEST_P(EditorFaults, areReportedOnceAndLeaveNoWrongRow) {
  for (int failing = 1; failing <= acts; ++failing) {
    SCOPED_TRACE("act " + std::to_string(failing));
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(failing);
    GetParam().open(journey);
    ASSERT_TRUE(journey.isOpen("frmTriggerAction"));
    GetParam().act(journey);
    journey.press("cmdApply");
    EXPECT_TRUE(journey.isOpen("frmTriggerAction"));
    expectReports(journey);
    expectPartOfWhole(added(before, journey.rows()));
    if (HasFailure()) return;
  }
}

// A trigger that could not be read is not written, whatever is tried; one that could is written
// when the connection is back.
TEST_P(EditorFaults, whileOpeningAnEditedTriggerLetItBeSavedWholeOrNotAtAll) {
  if (!GetParam().edits) return;
  int refused = 0;
  for (int failing = 1; failing <= actsToOpen; ++failing) {
    SCOPED_TRACE("act " + std::to_string(failing));
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.database->failAct(failing);
    GetParam().open(journey);
    const bool halfRead = journey.editor().state().halfRead;
    GetParam().act(journey);
    journey.press("cmdApply");
    const SiteRows written = added(before, journey.rows());
    EXPECT_TRUE(written.empty() || written == whole);
    EXPECT_TRUE(written.empty() || !halfRead);
    if (halfRead) ++refused;
  }
  EXPECT_GT(refused, 0);
}

INSTANTIATE_TEST_SUITE_P(Journeys, EditorFaults, ::testing::ValuesIn(journeys),
                         [](const auto& journey) { return journey.param.name; });

}  // namespace
}  // namespace pelorin::test
