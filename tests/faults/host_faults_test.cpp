// Every call of the host in the editor's journeys fails, alone or with all after it, each in a
// journey of its own over a fresh site: reports under the right names, and no row that should not
// be there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/faults/editor_scripts.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
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

class HostFaults : public ScriptWithFaults {
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
    journey.services->failCall(failingCall, lasting());
    script().open(journey);
    script().act(journey);
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

  // The member that a report says has failed; empty when it says something else.
  static std::string failedMember(const std::string& report) {
    const std::string end = " failed";
    const std::size_t begin = report.rfind(" :");
    if (!report.ends_with(end) || begin == std::string::npos) return "";
    return report.substr(begin + 2, report.size() - end.size() - begin - 2);
  }

  // Reports of failing calls; others only of lists that could not be filled because of them.
  static void expectReports(const Outcome& outcome, const std::string& firstMember) {
    std::vector<std::string> failed;
    for (const BoxRequest& box : outcome.boxes) {
      if (box.icon != BoxIcon::Critical || countsReports(box)) continue;
      const std::string member = failedMember(box.text);
      if (member.empty()) {
        EXPECT_THAT(box.text, HasSubstr(" :Nothing is selected: "));
        continue;
      }
      failed.push_back(member);
      EXPECT_THAT(reportersOfMember.at(member),
                  Contains(box.text.substr(0, box.text.find(": Line: "))));
      EXPECT_THAT(box.text, Not(HasSubstr(": Line: 0 :")));
    }
    ASSERT_FALSE(failed.empty());
    EXPECT_EQ(failed.front(), firstMember);
    expectCounts(static_cast<int>(failed.size()), outcome.boxes, outcome.logLines);
  }

  // The row that could not be announced stands; nothing was written or announced after it.
  static void expectStoppedAtAudit(const Outcome& outcome, const Outcome& whole,
                                   std::size_t failingAudit) {
    EXPECT_EQ(outcome.audits.size(), failingAudit);
    EXPECT_FALSE(outcome.reloaded);
    const std::size_t perAudit = rowCount(whole.written) / whole.audits.size();
    const std::size_t afterItsAudit = script().raisesAlarm ? 1 : 0;
    EXPECT_EQ(rowCount(outcome.written), failingAudit * perAudit - afterItsAudit);
  }
};

TEST_P(HostFaults, AreReportedAndLeaveNoWrongRow) {
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
    expectReports(outcome, member);
    expectRowsOfScript(script(), whole.written, outcome.written);
    if (member == "LogEvent") expectStoppedAtAudit(outcome, whole, ++audits);
    if (member == "GetResourceString" && lasting() == Lasting::Once) {
      EXPECT_EQ(outcome.written, whole.written);
      EXPECT_TRUE(outcome.reloaded);
    }
    if (HasFailure()) return;
  }
  EXPECT_EQ(audits, whole.audits.size());
}

PELORIN_SCRIPTS_WITH_FAULTS(HostFaults);

}  // namespace
}  // namespace pelorin::test
