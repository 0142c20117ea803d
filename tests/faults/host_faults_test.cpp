// Every call of the host in the editor's journeys fails once, each in a journey of its own over a
// fresh site: one report under the right name, and no row that should not be there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/faults/editor_scripts.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

// Under which names a failing member may be reported between the opening of the editor and the
// reload of the summary.
const std::map<std::string, std::set<std::string>> reportersOfMember = {
    {"ZornIsVn8HardwareSupportEnabled", {"frmTriggerAction.Form_Load", "Module1.LoadFilterList"}},
    {"EnableCustomize",
     {"frmTriggerAction.ZornLoadEventCache", "Error: LoadEventsByFilterType(): ",
      "Module1.GetEventDescription", "Module1.ZornGetEventDescription"}},
    {"OperatorID", {"frmTriggerAction.LoadCommandSetCombo"}},
    {"WorkStationID", {"frmTriggerAction.LoadCommandSetCombo"}},
    {"GetResourceString", {"MPublic: GRS"}},
    {"LogEvent",
     {"frmTriggerAction.SaveCCTVTriggerAction",
      "frmTriggerAction.InsertCCTVTriggerActionForThisLocation",
      "frmTriggerAction.SaveDVRTriggerAction",
      "frmTriggerAction.GenerateTriggerActonForEventsAtThisLocation"}}};

class HostFaults : public ::testing::TestWithParam<EditorScript> {
 protected:
  struct Outcome {
    SiteRows written;
    std::vector<std::string> members;  // that were called, in order
    std::vector<std::string> audits;
    bool reloaded = false;
    std::vector<BoxRequest> boxes;
    std::size_t logLines = 0;
    bool open = false;
  };

  // The journey up to its save, while the n-th call of the host fails (0: none).
  static Outcome run(int failingCall) {
    EditorJourney journey;
    journey.openSummary();
    const SiteRows before = journey.rows();
    journey.journal.clear();
    journey.services->failCall(failingCall);
    GetParam().open(journey);
    GetParam().act(journey);
    journey.press("cmdApply");
    Outcome outcome;
    outcome.written = added(before, journey.rows());
    for (const std::string& call : journey.journal.of("host: ")) {
      outcome.members.push_back(call.substr(0, call.find('(')));
    }
    outcome.audits = journey.journal.of("host: LogEvent");
    outcome.reloaded = !journey.journal.of("sql: exec TA_FetchSummary").empty();
    outcome.boxes = journey.screen.boxes;
    outcome.logLines = journey.environment.lines.size();
    outcome.open = journey.isOpen("frmTriggerAction");
    return outcome;
  }

  // One report of the failing call; others only of lists that could not be filled because of it.
  static void expectOneReport(const Outcome& outcome, const std::string& member) {
    int failed = 0;
    std::size_t critical = 0;
    for (const BoxRequest& box : outcome.boxes) {
      if (box.icon != BoxIcon::Critical) continue;
      ++critical;
      if (!box.text.ends_with(" :" + member + " failed")) {
        EXPECT_THAT(box.text, HasSubstr(" :Nothing is selected: "));
        continue;
      }
      ++failed;
      EXPECT_THAT(reportersOfMember.at(member),
                  Contains(box.text.substr(0, box.text.find(": Line: "))));
      EXPECT_THAT(box.text, Not(HasSubstr(": Line: 0 :")));
    }
    EXPECT_EQ(failed, 1);
    EXPECT_EQ(critical, outcome.logLines);
  }

  // The row that could not be announced stands; nothing was written or announced after it.
  static void expectStoppedAtAudit(const Outcome& outcome, const Outcome& whole,
                                   std::size_t failingAudit) {
    EXPECT_EQ(outcome.audits.size(), failingAudit);
    EXPECT_FALSE(outcome.reloaded);
    const std::size_t perAudit = rowCount(whole.written) / whole.audits.size();
    const std::size_t afterItsAudit = GetParam().raisesAlarm ? 1 : 0;
    EXPECT_EQ(rowCount(outcome.written), failingAudit * perAudit - afterItsAudit);
  }
};

TEST_P(HostFaults, AreReportedOnceAndLeaveNoWrongRow) {
  const Outcome whole = run(0);
  ASSERT_TRUE(whole.boxes.empty()) << whole.boxes.front().text;
  ASSERT_TRUE(whole.reloaded);
  for (const char* member : {"LogEvent", "GetResourceString", "EnableCustomize", "OperatorID"}) {
    ASSERT_THAT(whole.members, Contains(member));
  }
  std::size_t audits = 0;
  for (std::size_t n = 1; n <= whole.members.size(); ++n) {
    const std::string& member = whole.members[n - 1];
    SCOPED_TRACE("call " + std::to_string(n) + ": " + member);
    const Outcome outcome = run(static_cast<int>(n));
    EXPECT_TRUE(outcome.open);
    expectOneReport(outcome, member);
    expectRowsOfScript(GetParam(), whole.written, outcome.written);
    if (member == "LogEvent") expectStoppedAtAudit(outcome, whole, ++audits);
    if (member == "GetResourceString") {
      EXPECT_EQ(outcome.written, whole.written);
      EXPECT_TRUE(outcome.reloaded);
    }
    if (HasFailure()) return;
  }
  EXPECT_EQ(audits, whole.audits.size());
}

INSTANTIATE_TEST_SUITE_P(Journeys, HostFaults, ::testing::ValuesIn(editorScripts()),
                         [](const auto& script) { return script.param.name; });

}  // namespace
}  // namespace pelorin::test
