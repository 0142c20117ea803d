// Null and odd values in the tree's rows.
#include <limits>

#include "location/hardware_tree.h"
#include "location/location_text.h"
#include "tests/fakes/lookups.h"
#include "tests/location/picker_fixture.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::IsEmpty;

class OddRowsTest : public testing::Test {
 protected:
  OddRowsTest() { answerServer(*around.database); }
  bool refresh() {
    LocationNodes nodes(around.module, tree, [] { return true; });
    return HardwareTree(nodes, true).RefreshHardware();
  }
  TreeNode& node(const std::string& key) { return nodeOf(tree, key); }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  void onePort() {
    answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(5), "P", "Vollo", number(0), "P5"}}));
  }
  void panels(std::vector<std::vector<Value>> rows) {
    onePort();
    answer("EXECUTE sp_FetchPortPanels 5", controllerRows(std::move(rows)));
  }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
};

TEST_F(OddRowsTest, EveryNullReadsAsEmptyOrZeroAndNoRowIsDropped) {
  const std::vector<Value> nulls(5, Null{});
  answer("SELECT * From Servers",
         {{"ServerID", "Server_Name", "Site_ID"}, {{Null{}, Null{}, Null{}}}});
  answer("EXECUTE sp_FetchServerPorts 0", portRows({nulls}));
  answer("sp_FetchKumbos 0", {{"KumboID", "KumboName", "Address"}, {{Null{}, Null{}, Null{}}}});
  answer("EXECUTE sp_FetchKumboControllers 0", controllerRows({{Null{}, Null{}, Null{}, Null{}}}));
  answer("Select * From DialupLocations Where ServerID = 0 Order By LocationName",
         {{"LocationID", "LocationName"}, {{Null{}, Null{}}}});
  answer("Select * from Zorn_Controllers Where ServerID = 0 Order By [Name]",
         {{"ID", "Name", "Address"}, {{Null{}, Null{}, Null{}}}});
  answer("select * from DVR_Config where Serverid = 0 order by DVRName",
         {{"ID", "DVRName", "GlobalAddressID"}, {{Null{}, Null{}, Null{}}}});
  answer("select * from DVR_cameras where ID_DVR_Config = 0 order by CameraIndex",
         {{"ID", "CameraName", "GlobalAddressID"}, {{Null{}, Null{}, Null{}}}});
  answer(
      "select ClassName, ClassAddressAbreviation from integratedDeviceclasses where "
      "ClassAddressAbreviation = 'CSR'",
      {{"ClassName", "ClassAddressAbreviation"}, {{Null{}, "CSR"}}});
  answer(
      "select ID, AccountName, GlobalAddressId from CSR_Accounts where serverid = 0 order by "
      "AccountName",
      {{"ID", "AccountName", "GlobalAddressId"}, {{Null{}, Null{}, Null{}}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("LA0").text, " Lumet Configuration ()");
  EXPECT_EQ(node("LA0").tag, "\\\\.000");
  EXPECT_EQ(childrenText(node("YA0")), "PA || 34/34 |\n  AA0 || 21/21 |\n    CA0 || 14/14 |\n");
  EXPECT_EQ(childrenText(node("MA0")), "MD0 || 16/16 |\n");
  EXPECT_EQ(node("ZornCTLR0").tag, "");
  EXPECT_FALSE(isLocation(node("DVR0")));
  EXPECT_FALSE(isLocation(node("DVRCAM0")));
  EXPECT_EQ(node("ID-CSR0").text, "");
  EXPECT_EQ(node("CSRAccount0").tag, "!");
  EXPECT_FALSE(isLocation(node("CSRAccount0")));
  EXPECT_THAT(around.screen.boxes, IsEmpty());
}

TEST_F(OddRowsTest, NullItemsOfAFolderStand) {
  panels({{number(8), "c", number(7), "C8"}});
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
         {{"InputID", "Name", "Address"}, {{Null{}, Null{}, Null{}}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("IA8")), "II || 19/19 |\n");
  EXPECT_FALSE(isLocation(node("II")));
}

TEST_F(OddRowsTest, NullSetUpFieldsFitNothing) {
  panels({{number(8), "c", number(5), "C8"}});
  answer("Select * From PanelBasicSetups Where ControllerID = 8",
         {{"nxinputs", "ef_reb64", "ef_reb1", "ef_reb2", "ef_reb3", "ef_reb4", "ef_reb5", "ef_reb6",
           "ef_reb7", "ef_reb8"},
          {std::vector<Value>(10, Null{})}});
  answer("Select * from ExpInputs Where ControllerID = 8 Order By InputIndex",
         {{"ExpInputID", "InputIndex", "Name", "Address"},
          {{number(1), Null{}, "a", "A"}, {number(2), number(1), "b", "B"}}});
  answer("Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex",
         {{"ExpOutputID", "OutputIndex", "name", "Address"}, {{number(1), Null{}, "a", "A"}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("IX8")), "XI1 |a| 42/42 |A\n");
  EXPECT_EQ(childrenText(node("OX8")), "");
}

TEST_F(OddRowsTest, ControllerTypesThatAreNoByteHaveNoFolders) {
  panels({{number(1), "a", Null{}, "A"},
          {number(2), "b", number(256 + 7), "B"},
          {number(3), "c", number(-249), "C"},
          {number(4), "d", 1e300, "D"},
          {number(5), "e", "x", "E"},
          {number(6), "f", std::numeric_limits<std::int64_t>::max(), "F"}});
  EXPECT_TRUE(refresh());
  ASSERT_EQ(node("PA5").children().size(), 6U);
  for (const auto& controller : node("PA5").children()) {
    EXPECT_TRUE(controller->children().empty()) << controller->key;
  }
}

TEST_F(OddRowsTest, ControllerTypeGivenAsTextOrRealCounts) {
  panels({{number(1), "a", "7", "A"}, {number(2), "b", 5.0, "B"}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("CA1").children().size(), 5U);
  EXPECT_EQ(node("CA2").children().size(), 3U);
}

TEST_F(OddRowsTest, DuplicatesGetASuffixAndStandUnderTheirOwnParent) {
  answer("EXECUTE sp_FetchServerPorts 1", portRows({{number(5), "P", "Vollo", number(0), "P5"},
                                                    {number(6), "Q", "Vollo", number(0), "P6"}}));
  const Result same = controllerRows({{number(8), "c", number(7), "C8"}});
  answer("EXECUTE sp_FetchPortPanels 5", same);
  answer("EXECUTE sp_FetchPortPanels 6", same);
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
         {{"InputID", "Name", "Address"}, {{number(1), "i", "I1"}, {number(1), "j", "I1"}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("IA8")), "II1 |i| 19/19 |I1\nII1#2 |j| 19/19 |I1\n");
  EXPECT_EQ(childrenText(node("PA6")),
            "CA8#2 |c| 14/14 |C8\n"
            "  TA8#2 |Doors| 3/1 |\n"
            "  IA8#2 |Inputs| 3/1 |\n"
            "    II1#3 |i| 19/19 |I1\n"
            "    II1#4 |j| 19/19 |I1\n"
            "  RA8#2 |Readers| 3/1 |\n"
            "  OA8#2 |Relays| 3/1 |\n"
            "  OX8#2 |Virtual Relays| 3/1 |\n");
  EXPECT_THAT(around.screen.boxes, IsEmpty());
}

TEST_F(OddRowsTest, SameServerTwiceGivesTwoWholeBranches) {
  answer("SELECT * From Servers", {{"ServerID", "Server_Name", "Site_ID"},
                                   {{number(1), "a", number(1)}, {number(1), "b", number(2)}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("SA").children().size(), 6U);
  EXPECT_EQ(node("LA1#2").children().size(), 3U);
  EXPECT_EQ(node("IF1#2").children().size(), 2U);
}

TEST_F(OddRowsTest, KeyThatLooksLikeASuffixDoesNotCollide) {
  onePort();
  panels({{number(8), "c", number(7), "C8"}});
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
         {{"InputID", "Name", "Address"}, {{"1#2", "i", "I"}, {"1", "j", "J"}, {"1", "k", "K"}}});
  EXPECT_TRUE(refresh());
  EXPECT_EQ(childrenText(node("IA8")),
            "II1#2 |i| 19/19 |I\nII1 |j| 19/19 |J\nII1#3 |k| 19/19 |K\n");
}

TEST_F(OddRowsTest, ManyRowsWithTheSameKeyAreNotSlow) {
  panels({{number(8), "c", number(7), "C8"}});
  Result rows{{"InputID", "Name", "Address"}, {}};
  for (int i = 0; i < 20000; ++i) rows.rows.push_back({number(1), "i", "I"});
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8", rows);
  EXPECT_TRUE(refresh());
  EXPECT_EQ(node("IA8").children().size(), 20000U);
  EXPECT_NE(tree.find("II1#20000"), nullptr);
}

TEST_F(OddRowsTest, NumberThatDoesNotFitIsAReportedErrorWithWhatStands) {
  panels({{number(1), "a", number(0), "A"}, {number(5000000000), "b", number(0), "B"}});
  EXPECT_FALSE(refresh());
  EXPECT_NE(tree.find("CA1"), nullptr);
  ASSERT_EQ(around.screen.boxes.size(), 1U);
  EXPECT_THAT(around.screen.boxes.front().text,
              testing::MatchesRegex("RefreshHardware: Line: [1-9][0-9]* :Overflow"));
}

TEST_F(OddRowsTest, MissingColumnIsAReportedError) {
  answer("SELECT * From Servers", {{"ServerID"}, {{number(1)}}});
  EXPECT_FALSE(refresh());
  EXPECT_EQ(tree.count(), 1);
  EXPECT_EQ(around.screen.boxes.size(), 1U);
}

}  // namespace
}  // namespace pelorin::test
