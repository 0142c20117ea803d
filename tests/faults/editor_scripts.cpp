#include "tests/faults/editor_scripts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "editor/cctv/cctv_action.h"

namespace pelorin::test {

namespace {

void chooseDoorsAndEvents(EditorJourney& journey) {
  journey.tickFilter("External Events");
  journey.checkEvent(5001);
  journey.checkEvent(5003);
  for (const std::string door : {"001.01.007.D01", "001.01.007.D02"}) {
    journey.editor().addLocation(door, door + " - Door", door);
  }
  journey.showTab(1);
}

// By its number: a name that the host could not give is empty.
void raiseAlarm(EditorJourney& journey) {
  chooseData(journey.inEditor<ComboBox>("cmbCCTVActions"), cctv_action::raiseAlarm);
}

// Without the number that the database gave the row, and of an alarm without camera, monitor and
// preset: it does not use them, and takes what lists there are.
std::string comparable(const EditorScript& script, const std::string& row) {
  std::istringstream cells(row);
  std::string text;
  std::string cell;
  for (int column = 0; std::getline(cells, cell, '|'); ++column) {
    const bool unused = script.raisesAlarm && column >= 5 && column <= 7;
    if (column > 0 && !unused) text += cell + '|';
  }
  return text;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const EditorScript& script) {
  return out << script.name;
}

const std::vector<EditorScript>& editorScripts() {
  static const std::vector<EditorScript> scripts = {
      {"addCctv", [](EditorJourney& j) { j.add(); }, chooseDoorsAndEvents},
      {"addCctvWithReturnToNormal", [](EditorJourney& j) { j.add(); },
       [](EditorJourney& j) {
         chooseDoorsAndEvents(j);
         raiseAlarm(j);
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
  return scripts;
}

// A fault that lasts is met again, and a storm of reports goes to the log alone.
void ScriptWithFaults::expectCounts(int failing, const std::vector<BoxRequest>& boxes,
                                    std::size_t logLines) {
  const auto critical = std::count_if(boxes.begin(), boxes.end(), [](const BoxRequest& box) {
    return box.icon == BoxIcon::Critical;
  });
  if (lasting() == Lasting::Once) {
    EXPECT_EQ(failing, 1);
    EXPECT_EQ(static_cast<std::size_t>(critical), logLines) << "a line in the log for each report";
  } else {
    EXPECT_GE(failing, 1);
    EXPECT_GE(logLines, static_cast<std::size_t>(failing));
  }
}

void expectRowsOfScript(const EditorScript& script, const SiteRows& whole,
                        const SiteRows& written) {
  for (const auto& [table, rows] : written) {
    ASSERT_TRUE(whole.contains(table)) << table;
    auto next = whole.at(table).begin();
    const auto end = whole.at(table).end();
    for (const std::string& row : rows) {
      const auto found = std::find_if(next, end, [&](const std::string& expected) {
        return comparable(script, expected) == comparable(script, row);
      });
      ASSERT_NE(found, end) << row;
      EXPECT_TRUE(script.raisesAlarm || found == next) << row;
      next = found + 1;
    }
  }
}

std::size_t rowCount(const SiteRows& rows) {
  std::size_t count = 0;
  for (const auto& [table, added] : rows) count += added.size();
  return count;
}

}  // namespace pelorin::test
