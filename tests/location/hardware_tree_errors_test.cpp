// An error at every place of the load: what stands, what is reported, what is returned.
#include <algorithm>

#include "location/hardware_tree.h"
#include "tests/fakes/faulty_connection.h"
#include "tests/location/picker_fixture.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

class HardwareTreeErrorsTest : public testing::Test {
 protected:
  HardwareTreeErrorsTest() {
    answer("SELECT * From Servers",
           {{"ServerID", "Server_Name", "Site_ID"},
            {{number(1), "one", number(1)}, {number(2), "two", number(2)}}});
    for (const char* server : {"1", "2"}) answerServerRows(server);
    answer("Select * From PanelBasicSetups Where ControllerID = 111",
           {{"nxinputs", "ef_reb64", "ef_reb1", "ef_reb2", "ef_reb3", "ef_reb4", "ef_reb5",
             "ef_reb6", "ef_reb7", "ef_reb8"},
            {std::vector<Value>(10, number(1))}});
    answer(
        "select ClassName, ClassAddressAbreviation from integratedDeviceclasses where "
        "ClassAddressAbreviation = 'CSR'",
        {{"ClassName", "ClassAddressAbreviation"}, {{"Receivers", "CSR"}}});
  }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  // Port s5 with multiplexer s6 (controllers s10, s11) and its own controller s12, dial-up location
  // s3 with controller s13, a newer controller s1.
  void answerServerRows(const std::string& s) {
    const auto id = [&s](int n) { return number(std::stoi(s + std::to_string(n))); };
    answer("EXECUTE sp_FetchServerPorts " + s, portRows({{id(5), "P", "Vollo", number(0), "P"}}));
    answer("sp_FetchKumbos " + s + "5", {{"KumboID", "KumboName", "Address"}, {{id(6), "M", "K"}}});
    answer("EXECUTE sp_FetchKumboControllers " + s + "6",
           controllerRows({{id(10), "a", number(7), "A"}, {id(11), "b", number(4), "B"}}));
    answer("EXECUTE sp_FetchPortPanels " + s + "5",
           controllerRows({{id(12), "c", number(5), "C"}}));
    answer("Select * From DialupLocations Where ServerID = " + s + " Order By LocationName",
           {{"LocationID", "LocationName"}, {{id(3), "Far"}}});
    answer(
        "Select * from Controllers Where PortID IN (Select PortID From DialupLocations Where "
        "LocationID = " +
            s + "3)",
        controllerRows({{id(13), "d", number(6), "D"}}));
    answer("Select * from Zorn_Controllers Where ServerID = " + s + " Order By [Name]",
           {{"ID", "Name", "Address"}, {{id(1), "z", "Z"}}});
  }
  bool refresh() {
    LocationNodes nodes(around.module, tree, [] { return true; });
    return HardwareTree(nodes, true).RefreshHardware();
  }
  bool has(const std::string& key) const { return tree.find(key) != nullptr; }
  std::vector<std::string> reports() const { return around.screen.boxTexts(); }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
};

TEST_F(HardwareTreeErrorsTest, WithoutErrorsEverythingStandsAndNothingIsReported) {
  EXPECT_TRUE(refresh());
  for (const char* key : {"CA110", "CA111", "CA112", "CA113", "CA210", "CA213", "ZornCTLR21"}) {
    EXPECT_TRUE(has(key)) << key;
  }
  EXPECT_THAT(reports(), IsEmpty());
}

class RefreshHardwareItselfTest : public HardwareTreeErrorsTest,
                                  public testing::WithParamInterface<const char*> {};

TEST_P(RefreshHardwareItselfTest, AnErrorEndsItWithWhatWasBuilt) {
  around.database->fail(GetParam());
  EXPECT_FALSE(refresh());
  EXPECT_THAT(reports(),
              ElementsAre(MatchesRegex("RefreshHardware: Line: [1-9][0-9]* :statement failed")));
  EXPECT_TRUE(has("MA1"));
  EXPECT_FALSE(has("ID-DVR1"));
  EXPECT_FALSE(has("LA2"));
  EXPECT_EQ(around.database->statements().back(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Statements, RefreshHardwareItselfTest,
    testing::Values("EXECUTE sp_FetchServerPorts 1", "sp_FetchKumbos 15",
                    "EXECUTE sp_FetchKumboControllers 16", "EXECUTE sp_FetchPortPanels 15",
                    "Select * From DialupLocations Where ServerID = 1 Order By LocationName",
                    "Select * from Controllers Where PortID IN (Select PortID From DialupLocations "
                    "Where LocationID = 13)"));

TEST_F(HardwareTreeErrorsTest, FailingServersLeaveTheRoot) {
  around.database->fail("SELECT * From Servers");
  EXPECT_FALSE(refresh());
  EXPECT_EQ(treeText(tree), "SA | Hardware| 3/1 |\n");
  EXPECT_THAT(reports(), ElementsAre(MatchesRegex("RefreshHardware: Line: .*")));
}

TEST_F(HardwareTreeErrorsTest, FailingFolderKeepsItsControllerAndTheOthersAreBuilt) {
  around.database->fail(
      "Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and "
      "ControllerID = 110");
  EXPECT_FALSE(refresh());
  EXPECT_THAT(reports(),
              ElementsAre(MatchesRegex("AddFolderInfo: Line: [1-9][0-9]* :statement failed")));
  EXPECT_TRUE(has("IA110"));
  EXPECT_TRUE(has("RA110"));
  EXPECT_TRUE(has("CA111"));
  EXPECT_TRUE(has("CA213"));
}

TEST_F(HardwareTreeErrorsTest, FailingSetUpReportsUnderAddFolderInfo) {
  around.database->fail("Select * From PanelBasicSetups Where ControllerID = 112");
  EXPECT_FALSE(refresh());
  EXPECT_EQ(reports().size(), 2U);  // expansion inputs and expansion relays
  EXPECT_THAT(reports(), testing::Each(MatchesRegex("AddFolderInfo: Line: .*")));
  EXPECT_TRUE(has("RA112"));
}

TEST_F(HardwareTreeErrorsTest, FailingNewerFamilyKeepsTheServersOtherBranches) {
  around.database->fail("Select * from Zorn_Controllers Where ServerID = 1 Order By [Name]");
  EXPECT_FALSE(refresh());
  EXPECT_THAT(reports(), ElementsAre(MatchesRegex("FLocation.RefreshVn8Hardware: Line: .*")));
  EXPECT_TRUE(has("Zorn1"));
  EXPECT_TRUE(has("CA113"));
  EXPECT_TRUE(has("ZornCTLR21"));
}

TEST_F(HardwareTreeErrorsTest, FailingIntegratedDevicesLeaveTheNextServer) {
  around.database->fail(
      "select ClassName, ClassAddressAbreviation from integratedDeviceclasses where "
      "ClassAddressAbreviation = 'CSR'");
  EXPECT_FALSE(refresh());
  EXPECT_THAT(reports(), ElementsAre(MatchesRegex("FLocation.RefreshIntegratedDevices: Line: .*"),
                                     MatchesRegex("FLocation.RefreshIntegratedDevices: Line: .*")));
  EXPECT_TRUE(has("ID-CentralStations2"));
}

TEST_F(HardwareTreeErrorsTest, FailingPopulatingProceduresDoNotMakeItFalse) {
  around.database->fail("select * from DVR_Config where Serverid = 1 order by DVRName");
  EXPECT_TRUE(refresh());
  EXPECT_THAT(reports(), ElementsAre(MatchesRegex("FLocation.PopulateDVRNodes: Line: .*")));
}

TEST_F(HardwareTreeErrorsTest, FailingTextOfTheDialUpFolderIsReportedByTheSharedService) {
  around.services->failing.insert("GetResourceString");
  EXPECT_TRUE(refresh());
  EXPECT_THAT(reports(),
              ElementsAre(MatchesRegex("MPublic: GRS: .*"), MatchesRegex("MPublic: GRS: .*")));
  EXPECT_EQ(tree.find("MA1")->text, "");
}

TEST_F(HardwareTreeErrorsTest, WindowClosedDuringAReportEndsTheBuilding) {
  bool open = true;
  around.screen.duringBox = [&open](const BoxRequest&) { open = false; };
  around.database->fail(
      "Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and "
      "ControllerID = 110");
  LocationNodes nodes(around.module, tree, [&open] { return open; });
  EXPECT_FALSE(HardwareTree(nodes, true).RefreshHardware());
  EXPECT_THAT(around.database->statements().back(), testing::StartsWith("Select * From Inputs"));
  EXPECT_EQ(reports().size(), 1U);
  EXPECT_FALSE(has("RA110"));
}

// Lets the n-th act on the connection fail, n rising until the load meets no failure any more.
class HardwareTreeFaults : public HardwareTreeErrorsTest,
                           public testing::WithParamInterface<Lasting> {};

TEST_P(HardwareTreeFaults, EveryActOnTheConnectionMayFail) {
  ASSERT_TRUE(refresh());
  const std::string whole = treeText(tree);
  auto faulty = std::make_shared<FaultyConnection>(*around.database);
  around.module.setDBConnection(faulty);
  for (int act = 1;; ++act) {
    SCOPED_TRACE(act);
    ASSERT_LT(act, 2000);
    around.screen.boxes.clear();
    faulty->failAct(act, GetParam());
    const bool result = refresh();
    EXPECT_EQ(around.database->openCursors(), 0);
    if (faulty->acts() < act) {
      EXPECT_TRUE(result);
      EXPECT_EQ(treeText(tree), whole);
      break;
    }
    const std::vector<std::string> told = reports();
    ASSERT_GE(told.size(), 1U);
    EXPECT_TRUE(told.size() == 1 || GetParam() == Lasting::FromThenOn);
    EXPECT_THAT(told, Each(AnyOf(MatchesRegex(".*: Line: [1-9][0-9]* :The connection is broken."),
                                 HasSubstr(" more errors were written to "))));
    EXPECT_EQ(result, std::all_of(told.begin(), told.end(), [](const std::string& report) {
                return report.starts_with("FLocation.Populate");
              }));
    EXPECT_LT(treeText(tree).size(), whole.size() + 1);
    EXPECT_NE(tree.find("SA"), nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(Lasting, HardwareTreeFaults,
                         testing::Values(Lasting::Once, Lasting::FromThenOn), lastingName);

}  // namespace
}  // namespace pelorin::test
