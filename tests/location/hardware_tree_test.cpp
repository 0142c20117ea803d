// The tree of a site: which node stands where.
#include "location/hardware_tree.h"

#include <gmock/gmock.h>

#include "tests/fakes/lookups.h"
#include "tests/location/small_site.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HardwareTreeTest : public testing::Test {
 protected:
  HardwareTreeTest() {
    around.services->texts[1843] = "Dial-Up";
    answerServer(*around.database);
  }

  bool refresh(bool newerFamily = false) {
    LocationNodes nodes(around.module, tree, [] { return true; });
    return HardwareTree(nodes, newerFamily).RefreshHardware();
  }
  TreeNode& node(const std::string& key) { return nodeOf(tree, key); }
  std::vector<std::string> statements() const { return around.database->statements(); }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
};

TEST_F(HardwareTreeTest, ServerWithoutAnythingShowsItsConfigurationsAndThreeFolders) {
  EXPECT_TRUE(refresh());
  EXPECT_EQ(treeText(tree),
            "SA | Hardware| 3/1 |\n"
            "  LA1 | Lumet Configuration (MAIN)| 3/1 |\\\\MAIN.007\n"
            "    YA1 |PAMBA (MAIN)| 3/1 |\n"
            "    JA1 |VOLLO (MAIN)| 3/1 |\n"
            "    MA1 |Dial-Up| 3/1 |\n"
            "  IF1 | Interface Configuration (MAIN)| 3/1 |\n"
            "    ID-DVR1 |DVR| 3/1 |\n"
            "    ID-CentralStations1 |Central Stations| 3/1 |\n");
}

TEST_F(HardwareTreeTest, OnlyTheRootIsExpanded) {
  refresh();
  EXPECT_TRUE(node("SA").expanded);
  EXPECT_FALSE(node("LA1").expanded);
  EXPECT_FALSE(node("IF1").expanded);
}

TEST_F(HardwareTreeTest, NoServersGiveTheRootAlone) {
  answer("SELECT * From Servers", {{"ServerID", "Server_Name", "Site_ID"}, {}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(treeText(tree), "SA | Hardware| 3/1 |\n");
}

TEST_F(HardwareTreeTest, SiteNumberHasAtLeastThreeDigits) {
  answer("SELECT * From Servers", {{"ServerID", "Server_Name", "Site_ID"},
                                   {{number(1), "a", number(0)},
                                    {number(2), "b", number(45)},
                                    {number(3), "c", number(12345)},
                                    {number(4), "d", Null{}},
                                    {number(5), "e", number(-4)}}});
  refresh();
  EXPECT_EQ(node("LA1").tag, "\\\\A.000");
  EXPECT_EQ(node("LA2").tag, "\\\\B.045");
  EXPECT_EQ(node("LA3").tag, "\\\\C.12345");
  EXPECT_EQ(node("LA4").tag, "\\\\D.000");
  EXPECT_EQ(node("LA5").tag, "\\\\E.-004");
}

TEST_F(HardwareTreeTest, ServerIdIsTheFirstColumnWhateverItsName) {
  answer("SELECT * From Servers", {{"Number", "ServerID", "Server_Name", "Site_ID"},
                                   {{number(9), number(1), "x", number(1)}}});
  refresh();
  EXPECT_NE(tree.find("LA9"), nullptr);
  EXPECT_EQ(tree.find("LA1"), nullptr);
}

TEST_F(HardwareTreeTest, BuildingAgainReplacesTheTree) {
  tree.add(nullptr, {"old", "old"});
  tree.add(nullptr, {"older", "older"});
  refresh();
  refresh();
  EXPECT_EQ(tree.find("old"), nullptr);
  ASSERT_EQ(tree.roots().size(), 1U);
  EXPECT_EQ(tree.roots().front()->key, "SA");
  EXPECT_EQ(node("LA1").key, "LA1");
}

TEST_F(HardwareTreeTest, StatementsOfAServerInOrder) {
  answer("EXECUTE sp_FetchServerPorts 1",
         portRows({{number(5), "Port 5", "Vollo", number(0), "P5"}}));
  answer("sp_FetchKumbos 5", {{"KumboID", "KumboName", "Address"}, {{number(6), "Mux", "K6"}}});
  answer("EXECUTE sp_FetchKumboControllers 6",
         controllerRows({{number(10), "A", number(1), "C10"}}));
  answer("EXECUTE sp_FetchPortPanels 5", controllerRows({{number(11), "B", number(1), "C11"}}));
  answer("Select * From DialupLocations Where ServerID = 1 Order By LocationName",
         {{"LocationID", "LocationName"}, {{number(3), "Far"}}});
  refresh();
  EXPECT_THAT(
      statements(),
      ElementsAre("SELECT * From Servers", "EXECUTE sp_FetchServerPorts 1", "sp_FetchKumbos 5",
                  "EXECUTE sp_FetchKumboControllers 6", "EXECUTE sp_FetchPortPanels 5",
                  "Select * From DialupLocations Where ServerID = 1 Order By LocationName",
                  "Select * from Controllers Where PortID IN (Select PortID From "
                  "DialupLocations Where LocationID = 3)",
                  "select * from DVR_Config where Serverid = 1 order by DVRName",
                  "select ClassName, ClassAddressAbreviation from integratedDeviceclasses "
                  "where ClassAddressAbreviation = 'CSR'"));
}

TEST_F(HardwareTreeTest, OuterRowsAreFetchedBeforeInnerStatementsRun) {
  answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(5), "P", "Vollo", number(0), "P5"},
                                                    {number(6), "Q", "Vollo", number(0), "P6"}}));
  answer("EXECUTE sp_FetchPortPanels 5", controllerRows({{number(11), "B", number(7), "C11"}}));
  refresh();
  EXPECT_EQ(around.database->mostOpenCursors(), 1);
  EXPECT_EQ(around.database->openCursors(), 0);
}

TEST_F(HardwareTreeTest, PortsMultiplexersAndControllersStandUnderEachOther) {
  answer("EXECUTE sp_FetchServerPorts 1",
         portRows({{number(5), "Port 5", "Vollo", number(0), "P5"}}));
  answer("sp_FetchKumbos 5", {{"KumboID", "KumboName", "Address"}, {{number(6), "Mux", "K6"}}});
  answer("EXECUTE sp_FetchKumboControllers 6",
         controllerRows({{number(10), "A", number(1), "C10"}}));
  answer("EXECUTE sp_FetchPortPanels 5", controllerRows({{number(11), "B", number(1), "C11"}}));
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("JA1")),
            "PA5 |Port 5| 34/34 |P5\n"
            "  AA6 |Mux| 21/21 |K6\n"
            "    CA10 |A| 14/14 |C10\n"
            "  CA11 |B| 14/14 |C11\n");
  EXPECT_EQ(node("PA5").selectedImage, 0);
  EXPECT_EQ(node("AA6").selectedImage, 0);
  EXPECT_EQ(node("CA10").selectedImage, 0);
}

TEST_F(HardwareTreeTest, PortStyleDecidesTheFolder) {
  answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(1), "a", "Vollo", number(0), "A"},
                                                    {number(2), "b", "  vOLLO ", number(0), "B"},
                                                    {number(3), "c", "Pamba", number(0), "C"},
                                                    {number(4), "d", Null{}, number(0), "D"},
                                                    {number(5), "e", "", number(0), "E"},
                                                    {number(6), "f", "Vollo2", number(0), "F"}}));
  refresh();
  EXPECT_EQ(childrenText(node("JA1")), "PA1 |a| 34/34 |A\nPA2 |b| 34/34 |B\n");
  EXPECT_EQ(childrenText(node("YA1")),
            "PA3 |c| 34/34 |C\nPA4 |d| 34/34 |D\nPA5 |e| 34/34 |E\nPA6 |f| 34/34 |F\n");
}

TEST_F(HardwareTreeTest, PortKeyAndTextAreTheFirstTwoColumnsItsStatementsUsePortID) {
  answer("EXECUTE sp_FetchServerPorts 1",
         {{"Line", "Label", "PortID", "PortStyle", "PortType", "Address"},
          {{number(77), "Label 77", number(5), "Vollo", number(0), "P"}}});
  refresh();
  EXPECT_EQ(node("PA77").text, "Label 77");
  EXPECT_THAT(statements(), testing::Contains("sp_FetchKumbos 5"));
  EXPECT_THAT(statements(), testing::Contains("EXECUTE sp_FetchPortPanels 5"));
}

TEST_F(HardwareTreeTest, EveryPortTypeGivesThePlainControllerPicture) {
  std::vector<std::vector<Value>> ports;
  for (int type = 0; type < 40; ++type) {
    ports.push_back({number(type), "p", "Vollo", number(type), "P"});
    answer("EXECUTE sp_FetchPortPanels " + std::to_string(type),
           controllerRows({{number(100 + type), "c", number(0), "C"}}));
  }
  answer("EXECUTE sp_FetchServerPorts 1", portRows(ports));
  refresh();
  for (int type = 0; type < 40; ++type)
    EXPECT_EQ(node("CA" + std::to_string(100 + type)).image, 14);
}

TEST_F(HardwareTreeTest, DialUpLocationsHoldTheirControllersWithFolders) {
  answer("Select * From DialupLocations Where ServerID = 1 Order By LocationName",
         {{"LocationID", "LocationName"}, {{number(3), "Far"}, {number(4), "Further"}}});
  answer(
      "Select * from Controllers Where PortID IN (Select PortID From DialupLocations Where "
      "LocationID = 3)",
      controllerRows({{number(20), "Remote", number(5), "R20"}}));
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("MA1")),
            "MD3 |Far| 16/16 |\n"
            "  CA20 |Remote| 14/14 |R20\n"
            "    IX20 |Expansion Inputs| 3/1 |\n"
            "    OX20 |Expansion Relays| 3/1 |\n"
            "    RA20 |Readers| 3/1 |\n"
            "MD4 |Further| 16/16 |\n");
}

TEST_F(HardwareTreeTest, ControllerOnAMultiplexerIsNotListedAgainByItsPortOrADialUpLocation) {
  answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(5), "P", "Vollo", number(0), "P5"}}));
  answer("sp_FetchKumbos 5", {{"KumboID", "KumboName", "Address"}, {{number(6), "M", "K6"}}});
  const Result same = controllerRows({{number(10), "A", number(7), "C10"}});
  answer("EXECUTE sp_FetchKumboControllers 6", same);
  answer("EXECUTE sp_FetchPortPanels 5", same);
  answer("Select * From DialupLocations Where ServerID = 1 Order By LocationName",
         {{"LocationID", "LocationName"}, {{number(3), "Far"}}});
  answer(
      "Select * from Controllers Where PortID IN (Select PortID From DialupLocations Where "
      "LocationID = 3)",
      same);
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("CA10").parent(), &node("AA6"));
  EXPECT_EQ(node("PA5").children().size(), 1U);
  EXPECT_THAT(node("MD3").children(), IsEmpty());
  EXPECT_THAT(statements(), testing::Contains(testing::StartsWith("SELECT DoorID")).Times(1));
}

TEST_F(HardwareTreeTest, ControllerOfAPortIsNotListedAgainByADialUpLocation) {
  answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(5), "P", "Vollo", number(0), "P5"}}));
  answer("EXECUTE sp_FetchPortPanels 5", controllerRows({{number(10), "A", number(7), "C10"}}));
  answer("Select * From DialupLocations Where ServerID = 1 Order By LocationName",
         {{"LocationID", "LocationName"}, {{number(3), "Far"}}});
  answer(
      "Select * from Controllers Where PortID IN (Select PortID From DialupLocations Where "
      "LocationID = 3)",
      controllerRows({{number(10), "A", number(7), "C10"}, {number(11), "B", number(7), "C11"}}));
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("CA10").parent(), &node("PA5"));
  ASSERT_EQ(node("MD3").children().size(), 1U);
  EXPECT_EQ(node("MD3").children().front()->key, "CA11");
  EXPECT_THAT(statements(), testing::Contains(testing::StartsWith("SELECT DoorID")).Times(2));
}

TEST_F(HardwareTreeTest, TextOfTheDialUpFolderComesFromTheHost) {
  around.services->texts[1843] = "Wähl-Orte";
  refresh();
  EXPECT_EQ(node("MA1").text, "Wähl-Orte");
}

TEST_F(HardwareTreeTest, NewerFamilyIsAbsentWithoutSupportEvenWhenItsTablesHoldRows) {
  answer("Select * from Zorn_Controllers Where ServerID = 1 Order By [Name]",
         {{"ID", "Name", "Address"}, {{number(1), "Z", "Z1"}}});
  EXPECT_TRUE(refresh(false));
  EXPECT_EQ(tree.find("Zorn1"), nullptr);
  EXPECT_THAT(statements(), testing::Not(testing::Contains(testing::HasSubstr("Zorn_"))));
}

TEST_F(HardwareTreeTest, NewerFamilyFollowsTheInterfaceNodeAndIsFilledBeforeTheNetworkFolders) {
  answer("Select * from Zorn_Controllers Where ServerID = 1 Order By [Name]",
         {{"ID", "Name", "Address"}, {{number(1), "Z", "Z1"}}});
  EXPECT_TRUE(refresh(true));
  EXPECT_EQ(node("SA").children()[2]->key, "Zorn1");
  EXPECT_EQ(node("Zorn1").text, " Zorn Configuration (MAIN)");
  EXPECT_EQ(node("Zorn1").tag, "");
  EXPECT_EQ(node("ZornCTLR1").parent(), &node("Zorn1"));
  EXPECT_EQ(statements()[1], "Select * from Zorn_Controllers Where ServerID = 1 Order By [Name]");
}

TEST_F(HardwareTreeTest, EveryServerHasItsOwnBranch) {
  answer("SELECT * From Servers", {{"ServerID", "Server_Name", "Site_ID"},
                                   {{number(1), "one", number(1)}, {number(2), "two", number(2)}}});
  EXPECT_TRUE(refresh());
  std::vector<std::string> keys;
  for (const auto& child : node("SA").children()) keys.push_back(child->key);
  EXPECT_THAT(keys, ElementsAre("LA1", "IF1", "LA2", "IF2"));
  EXPECT_EQ(node("JA2").text, "VOLLO (TWO)");
}

}  // namespace
}  // namespace pelorin::test
