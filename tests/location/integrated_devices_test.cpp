// Recorders and alarm receivers in the tree.
#include "location/integrated_devices.h"

#include <gmock/gmock.h>

#include "tests/location/small_site.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;

const std::string units = "select * from DVR_Config where Serverid = 1 order by DVRName";
const std::string cameras =
    "select * from DVR_cameras where ID_DVR_Config = 3 order by CameraIndex";
const std::string classes =
    "select ClassName, ClassAddressAbreviation from integratedDeviceclasses where "
    "ClassAddressAbreviation = 'CSR'";
const std::string receivers =
    "select ID, CSRName, GlobalAddressId from CSR_Config where serverID = 1 order by CSRName";
const std::string accounts =
    "select ID, AccountName, GlobalAddressId from CSR_Accounts where serverid = 1 order by "
    "AccountName";
const std::string areas =
    "select ID, AreaName, GlobalAddressId from CSR_Areas where ID_CSR_Accounts = 7 order by "
    "AreaName ";
const std::string points =
    "select ID, PointName, GlobalAddressId from CSR_Points where ID_CSR_Accounts = 7 and "
    "ID_CSR_Areas = 9 order by PointName";

class IntegratedDevicesTest : public testing::Test {
 protected:
  IntegratedDevicesTest() {
    answer(units, {{"ID", "DVRName", "GlobalAddressID"}, {{number(3), "Recorder", "G3"}}});
    answer(cameras, {{"ID", "CameraName", "GlobalAddressID"},
                     {{number(31), "Gate", "G31"}, {number(30), "Yard", "G30"}}});
    answer(classes, {{"ClassName", "ClassAddressAbreviation"}, {{"Receivers", "CSR"}}});
    answer(receivers, {{"ID", "CSRName", "GlobalAddressId"},
                       {{number(4), "Central", "G4"}, {number(5), "West", "G5"}}});
    answer(accounts, {{"ID", "AccountName", "GlobalAddressId"},
                      {{number(7), "Bank", "G7"}, {number(8), "Shop", "G8"}}});
    answer(areas, {{"ID", "AreaName", "GlobalAddressId"},
                   {{number(9), "Vault", "G9"}, {number(10), "Yard", "G10"}}});
    answer(points, {{"ID", "PointName", "GlobalAddressId"},
                    {{number(11), "Door", "G11"}, {number(12), "Safe", "G12"}}});
  }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  void refresh() { devices.RefreshIntegratedDevices(1, server); }
  void expectReport(const std::string& procedure) {
    ASSERT_EQ(around.screen.boxes.size(), 1U);
    EXPECT_THAT(around.screen.boxes.front().text,
                testing::MatchesRegex(procedure + ": Line: [1-9][0-9]* :statement failed"));
  }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
  TreeNode& server = tree.add(nullptr, {"IF1", "server"});
  LocationNodes nodes{around.module, tree, [] { return true; }};
  IntegratedDevices devices{nodes};
};

TEST_F(IntegratedDevicesTest, WholeBranch) {
  refresh();
  EXPECT_EQ(childrenText(server),
            "ID-DVR1 |DVR| 3/1 |\n"
            "  DVR3 |Recorder| 46/46 |G3\n"
            "    DVRCAM31 |Gate| 44/44 |G31\n"
            "    DVRCAM30 |Yard| 44/44 |G30\n"
            "ID-CentralStations1 |Central Stations| 3/1 |\n"
            "  ID-CSR1 |Receivers| 3/1 |\n"
            "    CSR4 |Central| 66/66 |G4\n"
            "    CSR5 |West| 66/66 |G5\n"
            "  CSRACCOUNTS1 |Account Management| 3/1 |\n"
            "    CSRAccount7 |Bank| 67/67 |!G7\n"
            "      CSRArea9 |Vault| 68/68 |!G9\n"
            "        CSRPoint11 |Door| 69/69 |G11\n"
            "        CSRPoint12 |Safe| 69/69 |G12\n"
            "      CSRArea10 |Yard| 68/68 |!G10\n"
            "    CSRAccount8 |Shop| 67/67 |!G8\n");
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, AnAccountsAreasAndPointsComeBeforeTheNextAccount) {
  refresh();
  EXPECT_THAT(around.database->statements(),
              ElementsAre(units, cameras, classes, receivers, accounts, areas, points,
                          "select ID, PointName, GlobalAddressId from CSR_Points where "
                          "ID_CSR_Accounts = 7 and ID_CSR_Areas = 10 order by PointName",
                          "select ID, AreaName, GlobalAddressId from CSR_Areas where "
                          "ID_CSR_Accounts = 8 order by AreaName "));
  EXPECT_EQ(around.database->mostOpenCursors(), 1);
}

TEST_F(IntegratedDevicesTest, ServerWithoutRecordersShowsAnEmptyFolder) {
  answer(units, {{"ID", "DVRName", "GlobalAddressID"}, {}});
  refresh();
  ASSERT_NE(tree.find("ID-DVR1"), nullptr);
  EXPECT_TRUE(tree.find("ID-DVR1")->children().empty());
}

TEST_F(IntegratedDevicesTest, WithoutReceiverClassTheCentralStationsFolderStaysEmpty) {
  answer(classes, {{"ClassName", "ClassAddressAbreviation"}, {}});
  refresh();
  EXPECT_TRUE(tree.find("ID-CentralStations1")->children().empty());
  EXPECT_THAT(around.database->statements(), ElementsAre(units, cameras, classes));
}

TEST_F(IntegratedDevicesTest, ASecondReceiverClassDoesNotListTheReceiversAgain) {
  answer(classes,
         {{"ClassName", "ClassAddressAbreviation"}, {{"Receivers", "CSR"}, {"More", "csr"}}});
  refresh();
  EXPECT_THAT(around.database->statements(), testing::Contains(receivers).Times(1));
  EXPECT_THAT(around.database->statements(), testing::Contains(accounts).Times(1));
  EXPECT_EQ(tree.find("ID-CSR1")->children().size(), 2U);
  EXPECT_EQ(tree.find("ID-CentralStations1")->children().size(), 2U);
}

TEST_F(IntegratedDevicesTest, AreaWithoutPointsIsALeaf) {
  refresh();
  EXPECT_TRUE(tree.find("CSRArea10")->children().empty());
}

TEST_F(IntegratedDevicesTest, FailingRecorders) {
  around.database->fail(units);
  refresh();
  expectReport("FLocation.PopulateDVRNodes");
  EXPECT_NE(tree.find("CSRPoint11"), nullptr);
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, FailingCamerasEndTheRecordersWithWhatStands) {
  answer(units, {{"ID", "DVRName", "GlobalAddressID"},
                 {{number(3), "Recorder", "G3"}, {number(4), "Second", "G4"}}});
  around.database->fail(cameras);
  refresh();
  expectReport("FLocation.PopulateDVRNodes");
  EXPECT_NE(tree.find("DVR3"), nullptr);
  EXPECT_EQ(tree.find("DVR4"), nullptr);
  EXPECT_NE(tree.find("CSRPoint11"), nullptr);
}

TEST_F(IntegratedDevicesTest, FailingClasses) {
  around.database->fail(classes);
  refresh();
  expectReport("FLocation.RefreshIntegratedDevices");
  EXPECT_NE(tree.find("DVR3"), nullptr);
  EXPECT_NE(tree.find("ID-CentralStations1"), nullptr);
  EXPECT_EQ(tree.find("ID-CSR1"), nullptr);
  EXPECT_FALSE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, FailingReceivers) {
  around.database->fail(receivers);
  refresh();
  expectReport("FLocation.PopulateCSRNodes");
  EXPECT_NE(tree.find("CSRPoint11"), nullptr);
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, FailingAccounts) {
  around.database->fail(accounts);
  refresh();
  expectReport("FLocation.PopulateCSRAccounts");
  EXPECT_NE(tree.find("CSRACCOUNTS1"), nullptr);
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, FailingAreasOfOneAccountLeaveTheNextAccount) {
  around.database->fail(areas);
  refresh();
  expectReport("FLocation.PopulateCSRAreas");
  EXPECT_NE(tree.find("CSRAccount8"), nullptr);
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, FailingPointsOfOneAreaLeaveTheNextArea) {
  around.database->fail(points);
  refresh();
  expectReport("FLocation.PopulateCSRPoints");
  EXPECT_NE(tree.find("CSRArea10"), nullptr);
  EXPECT_TRUE(nodes.complete());
}

TEST_F(IntegratedDevicesTest, RowsThatCameBeforeAFailingFetchStand) {
  around.database->failFetch(accounts, 1);
  refresh();
  EXPECT_NE(tree.find("CSRPoint11"), nullptr);
  EXPECT_EQ(tree.find("CSRAccount8"), nullptr);
  ASSERT_EQ(around.screen.boxes.size(), 1U);
  EXPECT_THAT(around.screen.boxes.front().text,
              testing::StartsWith("FLocation.PopulateCSRAccounts: Line: "));
}

}  // namespace
}  // namespace pelorin::test
