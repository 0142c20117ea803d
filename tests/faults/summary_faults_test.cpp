// The n-th statement, fetch or host call of the summary fails, n rising until the act completes:
// each time one report, a list that can be used, nothing written that should not be.
#include <algorithm>
#include <set>

#include "tests/fakes/faulty_connection.h"
#include "tests/journeys/site_surroundings.h"
#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

const std::set<std::string> readers = {"Module1.InitEventTypeInfoArray",
                                       "Module1.GetEventDescription",
                                       "Module1.ZornGetEventDescription",
                                       "frmTASummary.LoadSummaryData",
                                       "frmTASummary.LoadCCTVSummaryData",
                                       "frmTASummary.GetDVRActionDeviceName",
                                       "MPublic: GRS"};

std::string procedureOf(const std::string& report) {
  return report.substr(0, report.find(": Line: "));
}

// A box and the same text as a line of the log, with the line of the call; as many of both as the
// fault was met.
void expectReports(const RecordingScreen& screen, const FakeEnvironment& environment,
                   const std::set<std::string>& procedures, Lasting lasting) {
  ASSERT_GE(screen.boxes.size(), 1U);
  if (lasting == Lasting::Once) {
    EXPECT_EQ(screen.boxes.size(), 1U);
  }
  ASSERT_EQ(environment.lines.size(), screen.boxes.size());
  for (std::size_t i = 0; i < screen.boxes.size(); ++i) {
    const std::string& text = screen.boxes[i].text;
    EXPECT_TRUE(procedures.contains(procedureOf(text))) << text;
    EXPECT_EQ(text.find(": Line: 0 :"), std::string::npos) << text;
    EXPECT_EQ(environment.lines[i].second, environment.dateTime + ": " + text);
  }
}

// The keys of what is listed are among those of the whole list, in the same order.
void expectPartOf(const std::vector<std::string>& listed, const std::vector<std::string>& whole) {
  auto rest = whole.begin();
  for (const std::string& key : listed) {
    rest = std::find(rest, whole.end(), key);
    ASSERT_NE(rest, whole.end()) << key;
    ++rest;
  }
}

class SummaryFaults : public SummaryTest, public testing::WithParamInterface<Lasting> {
 protected:
  SummaryFaults() {
    answerThree();
    module.setDBConnection(faulty);
  }

  std::vector<std::string> keys() {
    std::vector<std::string> found;
    for (int number = 1; number < grid().rows(); ++number) {
      found.push_back(grid().cell(number, summary_column::type) + " " +
                      grid().cell(number, summary_column::triggerId));
    }
    return found;
  }
  void forgetReports() {
    screen.boxes.clear();
    surroundings.environment.lines.clear();
  }
  void expectUsableAndReported() {
    expectReports(screen, surroundings.environment, readers, GetParam());
    expectPartOf(keys(), {"CCTV 5", "DVR / NVR 5", "Intercom 8"});
    EXPECT_EQ(editAndDeleteEnabled(), grid().rows() > 1);
    EXPECT_EQ(grid().fixedRows(), 1);
    EXPECT_EQ(database.openCursors(), 0);
    EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
    EXPECT_TRUE(form.isOpen());
  }

  std::shared_ptr<FaultyConnection> faulty = std::make_shared<FaultyConnection>(database);
};

TEST_P(SummaryFaults, EachStatementAndFetchOfTheFirstLoad) {
  faulty->failAct(0);
  screen.show(form);
  const int acts = faulty->acts();
  ASSERT_GT(acts, 10);
  for (int n = 1; n <= acts; ++n) {
    SCOPED_TRACE(n);
    form.unload();
    forgetReports();
    faulty->failAct(n, GetParam());
    screen.show(form);
    expectUsableAndReported();
    EXPECT_EQ(grid().row(), grid().rows() > 1 ? 1 : 0);
  }
}

TEST_P(SummaryFaults, EachStatementAndFetchOfAReload) {
  screen.show(form);
  faulty->failAct(0);
  form.ReloadSummary();
  const int acts = faulty->acts();
  ASSERT_GT(acts, 8);
  for (int n = 1; n <= acts; ++n) {
    SCOPED_TRACE(n);
    forgetReports();
    faulty->failAct(n, GetParam());
    form.ReloadSummary();
    expectUsableAndReported();
  }
  faulty->failAct(0);
  form.ReloadSummary();
  EXPECT_THAT(rows(), testing::ElementsAre(cctvLine, dvrLine, intercomLine));
}

TEST_P(SummaryFaults, EachHostCallOfALoad) {
  screen.show(form);
  services.failCall(0);
  form.ReloadSummary();
  const int calls = services.calls();
  ASSERT_GE(calls, 3);
  for (int n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    forgetReports();
    services.failCall(n, GetParam());
    form.ReloadSummary();
    expectUsableAndReported();
    EXPECT_EQ(grid().rows(), 4);
  }
}

INSTANTIATE_TEST_SUITE_P(Lasting, SummaryFaults,
                         testing::Values(Lasting::Once, Lasting::FromThenOn), lastingName);

// Over the demonstration site, so that the tables can be compared.
class DeletionFaults : public testing::TestWithParam<Lasting> {
 protected:
  struct Outcome {
    bool failed = false;
    bool listed = false;
    TriggerTables tables;
    std::vector<std::string> audits;
    std::vector<std::string> reports;
  };

  // Deletes one trigger of a fresh site while the n-th act of the connection fails.
  Outcome deleteWithFault(const SummaryKey& key, int failingAct) {
    SiteSurroundings around;
    const auto faulty = std::make_shared<FaultyConnection>(*around.database);
    around.module.setDBConnection(faulty);
    EventCatalogue catalogue(around.module);
    frmTASummary form(around.module, catalogue, [](const EditorRequest&, WindowHandle) {});
    around.screen.show(form);
    before = around.triggerTables();
    auto& grid = controlOf<Grid>(form, "MSFlexGrid1");
    grid.userSelectRow(rowOf(grid, key));
    around.journal.clear();
    faulty->failAct(failingAct, GetParam());
    form.userPress(controlOf<Button>(form, "cmdDelete"));
    acts = faulty->acts();
    if (failingAct > 0 && failingAct <= acts) {
      expectReports(around.screen, around.environment,
                    {"Module1.DeleteCCTVTriggerAction", "Module1.DeleteTriggerAction"},
                    Lasting::Once);
    }
    Outcome outcome{failingAct > 0 && failingAct <= acts, rowOf(grid, key) > 0,
                    around.triggerTables(), around.journal.of("host: LogEvent"),
                    around.screen.boxTexts()};
    around.screen.unloadAll();
    return outcome;
  }

  TriggerTables before;
  int acts = 0;
};

TEST_P(DeletionFaults, OfACctvActionLeaveEverythingAsItWas) {
  deleteWithFault({"CCTV", 2}, 0);
  ASSERT_EQ(acts, 1);
  const Outcome outcome = deleteWithFault({"CCTV", 2}, 1);
  EXPECT_TRUE(outcome.listed);
  EXPECT_EQ(outcome.tables, before);
  EXPECT_TRUE(outcome.audits.empty());
}

TEST_P(DeletionFaults, OfADvrTriggerStopAtThatPointAndKeepTheRowListed) {
  const Outcome whole = deleteWithFault({"DVR / NVR", 2}, 0);
  EXPECT_FALSE(whole.listed);
  EXPECT_EQ(whole.audits.size(), 1U);
  const int all = acts;
  ASSERT_GE(all, 4);
  for (int n = 1; n <= all; ++n) {
    SCOPED_TRACE(n);
    const Outcome outcome = deleteWithFault({"DVR / NVR", 2}, n);
    EXPECT_TRUE(outcome.failed);
    EXPECT_TRUE(outcome.listed);
    EXPECT_TRUE(outcome.audits.empty());
    EXPECT_EQ(outcome.tables.at("IntegratedDeviceTriggers"), before.at("IntegratedDeviceTriggers"));
    EXPECT_EQ(outcome.tables.at("CCTV_TriggerAction"), before.at("CCTV_TriggerAction"));
    EXPECT_EQ(outcome.tables.at("DVR_TriggerActions"),
              n == all ? whole.tables.at("DVR_TriggerActions") : before.at("DVR_TriggerActions"));
  }
}

INSTANTIATE_TEST_SUITE_P(Lasting, DeletionFaults,
                         testing::Values(Lasting::Once, Lasting::FromThenOn), lastingName);

}  // namespace
}  // namespace pelorin::test
