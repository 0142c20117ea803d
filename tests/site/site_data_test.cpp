// What the demonstration site promises: something of everything, and addresses that can be stored.
#include <gmock/gmock.h>

#include <set>

#include "base/text_key.h"
#include "site/schema.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::Ge;
using testing::IsSupersetOf;
using testing::Le;
using testing::Not;
using testing::Pair;

class DemonstrationSite : public SiteTest {
 protected:
  std::vector<std::string> column(const std::string& sql) {
    std::vector<std::string> values;
    RecordSet rows = connection_->open(sql);
    while (rows.next()) values.push_back(rows.text(0));
    return values;
  }
  std::vector<int> numbers(const std::string& sql) {
    std::vector<int> values;
    RecordSet rows = connection_->open(sql);
    while (rows.next()) values.push_back(rows.int32(0));
    return values;
  }
};

bool isAddress(const std::string& column) {
  return equalNoCase(column, "Address") || equalNoCase(column, "GlobalAddressID");
}

TEST_F(DemonstrationSite, AddressesAreUniqueAndCanBeStored) {
  std::set<std::string> seen;
  for (const site::Table& table : site::siteSchema().tables()) {
    for (const site::Column& address : table.columns) {
      if (!isAddress(address.name)) continue;
      for (const std::string& value : column("select " + address.name + " from " + table.name)) {
        EXPECT_TRUE(seen.insert(lowerCase(value)).second) << value << " twice";
        EXPECT_FALSE(value.empty()) << table.name;
        EXPECT_EQ(value.find_first_of(" '"), std::string::npos) << value;
        EXPECT_NE(value.front(), '!') << value;
      }
    }
  }
  EXPECT_GT(seen.size(), 250U);
}

TEST_F(DemonstrationSite, NamesHaveNoTabsOrLineBreaks) {
  for (const site::Table& table : site::siteSchema().tables()) {
    RecordSet rows = connection_->open("select * from " + table.name);
    while (rows.next()) {
      for (const site::Column& cell : table.columns) {
        EXPECT_EQ(rows.text(cell.name).find_first_of("\t\r\n"), std::string::npos);
      }
    }
  }
}

TEST_F(DemonstrationSite, HasControllersOfEveryTypeThatTheTreeTellsApart) {
  EXPECT_THAT(numbers("select Controller_Type from Controllers"),
              IsSupersetOf({3, 4, 5, 6, 7, 8, 9, 11, 15, 2}));
}

TEST_F(DemonstrationSite, HasPortsOfBothStyles) {
  EXPECT_THAT(column("select PortStyle from ServerPorts"),
              AllOf(Contains("Vollo"), Contains("Pamba"), Contains("")));
  EXPECT_EQ(count("Servers"), 2);
}

TEST_F(DemonstrationSite, HasExpansionPointsWithEveryKindOfSetUp) {
  EXPECT_THAT(numbers("select ControllerID from PanelBasicSetups where ef_reb64 = 1"), Contains(3));
  EXPECT_THAT(numbers("select ControllerID from PanelBasicSetups where ef_reb8 = 1"), Contains(8));
  EXPECT_THAT(numbers("select ControllerID from ExpInputs where ControllerID not in "
                      "(select ControllerID from PanelBasicSetups)"),
              Contains(11));
  EXPECT_GT(numbers("select ExpInputID from ExpInputs inner join PanelBasicSetups on "
                    "PanelBasicSetups.ControllerID = ExpInputs.ControllerID "
                    "where InputIndex > nxinputs")
                .size(),
            0U);
}

TEST_F(DemonstrationSite, HasItemsThatAreNoLocations) {
  for (const char* sql :
       {"select DoorID from Doors where Active = 0", "select DoorID from Doors where Visible = 0",
        "select InputID from Inputs where BelongToDoor = 1",
        "select InputID from Inputs where Visible = 0",
        "select OutputID from Outputs where BelongToDoor = 1",
        "select OutputID from Outputs where Visible = 0",
        "select ReaderID from Readers where BelongToDoor = 1",
        "select RelayID from Zorn_Relays where RelayType <> 2 and RelayType <> 4",
        "select ControllerID from Doors where ControllerID = 10"}) {
    EXPECT_FALSE(column(sql).empty()) << sql;
  }
}

TEST_F(DemonstrationSite, EventNumbersSuitTheirTypes) {
  RecordSet types = connection_->open("exec TA_FetchAllEventTypeInfo");
  while (types.next()) {
    if (isNull(types.value("MinEventID"))) continue;
    const std::string table = types.text("TableName");
    std::string sql = "select EventId from " + table;
    if (table == "Zorn_EventDefinitions") sql += " where EventId <= " + types.text("MaxEventID");
    if (table == "Zorn_EventDefinitions") sql += " and EventId >= " + types.text("MinEventID");
    const std::vector<int> events = numbers(sql);
    EXPECT_THAT(events, Each(AllOf(Ge(types.int32("MinEventID")), Le(types.int32("MaxEventID")))));
    EXPECT_FALSE(events.empty()) << table;
  }
}

TEST_F(DemonstrationSite, HasAboutThreeHundredEventsInThirteenCategories) {
  std::int64_t events = 0;
  for (const site::Table& table : site::siteSchema().tables()) {
    if (table.column("DefaultDescription")) events += count(table.name);
  }
  EXPECT_THAT(events, AllOf(Ge(280), Le(350)));
  EXPECT_EQ(column("select FilterType from TA_EventFilters order by FilterIndex").size(), 13U);
}

TEST_F(DemonstrationSite, SomeEventsAreCustomisedAndSomeAreUndefined) {
  EXPECT_FALSE(column("select Description from AlarmEvents where Description is not null").empty());
  EXPECT_FALSE(column("select Description from ExternalEvents where Description = ''").empty());
  EXPECT_THAT(column("select DefaultDescription from AlarmEvents"),
              AllOf(Contains("Undefined alarm 30"), Contains("UNDEFINED alarm 39")));
}

TEST_F(DemonstrationSite, ReturnToNormalPairsExistOnBothSides) {
  const std::vector<int> external = numbers("select EventId from ExternalEvents");
  for (const char* side : {"AlarmID", "ExternalEventId"}) {
    EXPECT_THAT(external,
                IsSupersetOf(numbers(std::string("select ") + side + " from RetNormalMatrix")));
  }
  const std::vector<int> integrated = numbers("select EventId from IntegratedEvents");
  for (const char* side : {"IntegratedAlarmID", "IntegratedRTNId"}) {
    EXPECT_THAT(integrated,
                IsSupersetOf(numbers(std::string("select ") + side + " from IntegratedRTNMatrix")));
  }
}

TEST_F(DemonstrationSite, TriggersOfBothKindsExistWithTheirOddCases) {
  EXPECT_GE(count("CCTV_TriggerAction") + count("IntegratedDeviceTriggers"), 12);
  EXPECT_THAT(numbers("select SwitcherID from CCTV_TriggerAction where SwitcherID not in "
                      "(select SwitcherID from CCTV_Switchers)"),
              testing::SizeIs(1));
  EXPECT_THAT(numbers("select TriggerID from IntegratedDeviceTriggers where ActionID not in "
                      "(select DVRActionID from DVR_TriggerActions)"),
              testing::SizeIs(1));
}

TEST_F(DemonstrationSite, OneRecorderIsOfVendorTypeFour) {
  EXPECT_THAT(column("select DVRName from DVR_Config where DVRVendorID = 4"), testing::SizeIs(1));
  EXPECT_EQ(count("DVR_Config"), 3);
}

TEST_F(DemonstrationSite, TheAddInIsRegistered) {
  EXPECT_EQ(one("SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE "
                "AddInObjectName=N'MorvatPelorin'"),
            "3");
}

}  // namespace
}  // namespace pelorin
