// The summary over the demonstration site, with real statements.
#include <gmock/gmock.h>

#include "site/large_site.h"
#include "summary/frm_ta_summary.h"
#include "tests/fakes/lookups.h"
#include "tests/journeys/site_surroundings.h"

namespace pelorin::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class SummaryJourney : public testing::Test, protected OneForm {
 protected:
  explicit SummaryJourney(const SiteFilling& filling = demonstrationSite) : around(filling) {
    around.services->texts = {{1677, "Call camera"}, {1675, "Raise alarm"}, {1821, "Acknowledge"}};
  }
  void TearDown() override { around.screen.unloadAll(); }

  void open() {
    around.screen.show(form);
    around.journal.clear();
  }
  Form& tested() override { return form; }
  Grid& grid() { return control<Grid>("MSFlexGrid1"); }
  std::string row(int number) { return rowText(grid(), number); }
  std::vector<std::string> rows() { return rowTexts(grid()); }
  int rowOfTrigger(const std::string& type, int id) {
    const int number = rowOf(grid(), {type, id});
    EXPECT_GT(number, 0) << type << " " << id;
    return number;
  }
  void deleteTrigger(const std::string& type, int id) {
    grid().userSelectRow(rowOfTrigger(type, id));
    form.userPress(button("cmdDelete"));
  }

  SiteSurroundings around;
  EventCatalogue catalogue{around.module};
  std::vector<EditorRequest> requests;
  frmTASummary form{around.module, catalogue, [this](const EditorRequest& request, WindowHandle) {
                      requests.push_back(request);
                    }};
};

std::vector<std::string> without(std::vector<std::string> rows, const std::string& start) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const std::string& row) { return row.starts_with(start); });
  if (found == rows.end()) {
    ADD_FAILURE() << "no row " << start;
  } else {
    rows.erase(found);
  }
  return rows;
}

TEST_F(SummaryJourney, ListsCctvActionsByAddressAndEventThenTheOthers) {
  open();
  EXPECT_THAT(around.screen.boxTexts(), IsEmpty());
  std::vector<std::string> keys;
  for (int number = 1; number < grid().rows(); ++number) {
    keys.push_back(grid().cell(number, summary_column::location) + " " +
                   grid().cell(number, summary_column::eventId) + " " +
                   grid().cell(number, summary_column::type) + " " +
                   grid().cell(number, summary_column::triggerId));
  }
  EXPECT_THAT(keys,
              ElementsAre("001.01.001.D01 1 CCTV 1", "001.01.001.D01 2 CCTV 2",
                          "001.01.007.D01 1 CCTV 3", "001.ACC01.AR01.PT03 5003 CCTV 6",
                          "001.ACC01.AR01.PT03 5103 CCTV 8", "012.01.013.I01 17 CCTV 4",
                          "012.01.013.I02 17 CCTV 5", "001.01.001.D03 38 Intercom 7",
                          "001.01.001.I01 36 DVR / NVR 1", "001.01.004.R01 1007 DVR / NVR 3",
                          "001.01.007.I01 40 DVR / NVR 2", "012.01.011.D01 1 DVR / NVR 4",
                          "012.01.012.I02 17 DVR / NVR 6", "Z001.C1.M1.D1 81009 DVR / NVR 5"));
}

TEST_F(SummaryJourney, EveryRowSaysWhatHappensWhere) {
  open();
  for (int number = 1; number < grid().rows(); ++number) {
    EXPECT_THAT(grid().cell(number, summary_column::trigger),
                testing::MatchesRegex("[0-9]{5} - .+"))
        << row(number);
  }
}

TEST_F(SummaryJourney, ActionWhoseSwitcherIsGoneIsNotListed) {
  ASSERT_THAT(around.rowsOf("select TA_ID from CCTV_TriggerAction"), Contains("7|"));
  open();
  EXPECT_EQ(rowOf(grid(), {"CCTV", 7}), 0);
}

TEST_F(SummaryJourney, TriggerWhoseActionIsGoneShowsAnEmptyDevice) {
  open();
  EXPECT_EQ(grid().cell(rowOfTrigger("DVR / NVR", 6), summary_column::device), "");
  EXPECT_NE(grid().cell(rowOfTrigger("DVR / NVR", 1), summary_column::device), "");
}

TEST_F(SummaryJourney, DeletedCctvActionIsGoneFromListAndDatabaseAndAudited) {
  open();
  const TriggerTables before = around.triggerTables();
  const std::vector<std::string> listed = rows();
  const std::string gone = row(rowOfTrigger("CCTV", 2));
  deleteTrigger("CCTV", 2);
  TriggerTables expected = before;
  expected["CCTV_TriggerAction"] = without(before.at("CCTV_TriggerAction"), "2|");
  EXPECT_EQ(around.triggerTables(), expected);
  EXPECT_EQ(rows(), without(listed, gone));
  EXPECT_THAT(around.journal.lines(),
              ElementsAre("host: LogEvent(Delete, TriggerAction, 2, Trigger Event 2, 1186)"));
}

TEST_F(SummaryJourney, DeletedDvrTriggerTakesItsActionAlong) {
  open();
  const TriggerTables before = around.triggerTables();
  deleteTrigger("DVR / NVR", 2);
  TriggerTables expected = before;
  expected["IntegratedDeviceTriggers"] = without(before.at("IntegratedDeviceTriggers"), "2|");
  expected["DVR_TriggerActions"] = without(before.at("DVR_TriggerActions"), "2|");
  EXPECT_EQ(around.triggerTables(), expected);
}

TEST_F(SummaryJourney, DeletedTriggerOfAnUnknownClassLeavesTheRecordersActionAlone) {
  open();
  const TriggerTables before = around.triggerTables();
  deleteTrigger("Intercom", 7);
  TriggerTables expected = before;
  expected["IntegratedDeviceTriggers"] = without(before.at("IntegratedDeviceTriggers"), "7|");
  EXPECT_EQ(around.triggerTables(), expected);
}

TEST_F(SummaryJourney, TriggerDeletedElsewhereMeanwhileIsDeletedWithoutHarm) {
  open();
  around.database->execute("exec TA_DeleteTrigger 3");
  const TriggerTables before = around.triggerTables();
  deleteTrigger("DVR / NVR", 3);
  EXPECT_EQ(around.triggerTables(), before);
  EXPECT_THAT(around.screen.boxTexts(), IsEmpty());
}

TEST_F(SummaryJourney, DeletingRowByRowEndsWithTheHeaderAlone) {
  open();
  while (grid().rows() > 1) {
    const int before = grid().rows();
    grid().userSelectRow(1);
    form.userPress(button("cmdDelete"));
    ASSERT_EQ(grid().rows(), before - 1);
  }
  EXPECT_FALSE(button("cmdDelete").enabled());
  form.ReloadSummary();
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_THAT(around.rowsOf("select TA_ID from CCTV_TriggerAction"), ElementsAre("7|"));
  EXPECT_THAT(around.rowsOf("select TriggerID from IntegratedDeviceTriggers"), IsEmpty());
}

TEST_F(SummaryJourney, EditHandsOverTheIdAndClassOfTheRow) {
  open();
  for (int number = 1; number < grid().rows(); ++number) {
    grid().userSelectRow(number);
    form.userPress(button("cmdAddEdit(1)"));
    const std::string type = grid().cell(number, summary_column::type);
    EXPECT_EQ(std::to_string(requests.back().m_TriggerID),
              grid().cell(number, summary_column::triggerId));
    EXPECT_EQ(requests.back().m_ActionDeviceClass, DeviceClassIdFromName(type)) << type;
  }
}

TEST_F(SummaryJourney, ReloadShowsWhatWasSavedSinceAndKeepsTheRow) {
  open();
  grid().userSelectRow(rowOfTrigger("DVR / NVR", 2));
  around.database->execute(
      "exec CCTV_Insert_TA 1, 1, 1, 0, 1, '001.01.001.D02', 1, '1', '001.01.001.D02 - x', 0, True");
  const int before = grid().rows();
  form.ReloadSummary();
  EXPECT_EQ(grid().rows(), before + 1);
  EXPECT_EQ(grid().row(), rowOfTrigger("DVR / NVR", 2));
}

TEST_F(SummaryJourney, CustomisedDescriptionsAreShownWhenTheHostWantsThem) {
  open();
  const std::vector<std::string> plain = rows();
  around.services->enableCustomize = true;
  form.ReloadSummary();
  EXPECT_NE(rows(), plain);
}

class EmptySummaryJourney : public SummaryJourney {
 protected:
  EmptySummaryJourney() : SummaryJourney(bareSite) {}
};

TEST_F(EmptySummaryJourney, SiteWithoutTriggersShowsTheHeaderAlone) {
  open();
  EXPECT_THAT(around.screen.boxTexts(), IsEmpty());
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_FALSE(button("cmdAddEdit(1)").enabled());
  EXPECT_TRUE(button("cmdAddEdit(0)").enabled());
}

class LargeSummaryJourney : public SummaryJourney {
 protected:
  LargeSummaryJourney()
      : SummaryJourney(
            largeSite({.controllers = 4, .locations = 100, .triggers = 3000, .events = 200})) {}
};

TEST_F(LargeSummaryJourney, ListsEveryTrigger) {
  open();
  EXPECT_THAT(around.screen.boxTexts(), IsEmpty());
  EXPECT_EQ(grid().rows(), 3001);
}

}  // namespace
}  // namespace pelorin::test
