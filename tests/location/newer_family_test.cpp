// The newer controllers' folders in the tree.
#include "location/newer_family.h"

#include <gmock/gmock.h>

#include "tests/location/small_site.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;

const std::string controllers = "Select * from Zorn_Controllers Where ServerID = 1 Order By [Name]";
const std::string doors =
    "Select [Name], DoorID, [Index], [Address] From Zorn_Doors Where ModuleID IN (Select ID from "
    "Zorn_Modules Where ControllerID = 5)";
const std::string inputs =
    "Select * From Zorn_Inputs Where ModuleID IN (Select ID from Zorn_Modules Where ControllerID = "
    "5)";
const std::string relays =
    "Select [Name], RelayID, [Index], [Address], [RelayType] From Zorn_Relays Where (RelayType = 2 "
    "OR RelayType = 4) AND ModuleID IN (Select ID from Zorn_Modules Where ControllerID = 5)";
const std::string readers =
    "Select [Name], ReaderID, [Index], [Address] From Zorn_Readers Where ControllerID = 5";
const std::string modules = "Select [Name], ID, [Address] From Zorn_Modules Where ControllerID = 5";

class NewerFamilyTest : public testing::Test {
 protected:
  NewerFamilyTest() {
    answer(controllers,
           {{"ID", "ServerID", "Name", "Address"}, {{number(5), number(1), "North", "Z5"}}});
  }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  void refresh() { family.RefreshVn8Hardware(1, server); }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
  TreeNode& server = tree.add(nullptr, {"Zorn1", "server"});
  LocationNodes nodes{around.module, tree, [] { return true; }};
  NewerFamily family{nodes};
};

TEST_F(NewerFamilyTest, ControllerAlwaysHasItsFiveFolders) {
  refresh();
  EXPECT_EQ(childrenText(server),
            "ZornCTLR5 |North| 14/14 |Z5\n"
            "  ZornDOORS5 |Doors| 3/1 |\n"
            "  ZornINPUTS5 |Inputs| 3/1 |\n"
            "  ZornRELAYS5 |Relays| 3/1 |\n"
            "  ZornREADERS5 |Reader Locations| 3/1 |\n"
            "  ZornMODULES5 |Modules| 3/1 |\n");
  EXPECT_TRUE(nodes.complete());
}

TEST_F(NewerFamilyTest, StatementsInOrder) {
  refresh();
  EXPECT_THAT(around.database->statements(),
              ElementsAre(controllers, doors, inputs, relays, readers, modules));
}

TEST_F(NewerFamilyTest, ItemsOfEveryKind) {
  answer(doors, {{"Name", "DoorID", "Index", "Address"}, {{"Door", number(1), number(1), "ZD1"}}});
  answer(inputs,
         {{"InputID", "ModuleID", "Name", "Address"}, {{number(2), number(1), "In", "ZI2"}}});
  answer(relays, {{"Name", "RelayID", "Index", "Address", "RelayType"},
                  {{"Relay", number(3), number(1), "ZR3", number(2)}}});
  answer(readers,
         {{"Name", "ReaderID", "Index", "Address"}, {{"Reader", number(4), number(1), "ZE4"}}});
  answer(modules, {{"Name", "ID", "Address"}, {{"Module", number(5), "ZM5"}}});
  refresh();
  EXPECT_EQ(childrenText(*server.children().front()),
            "ZornDOORS5 |Doors| 3/1 |\n"
            "  ZornDR1 |Door| 17/17 |ZD1\n"
            "ZornINPUTS5 |Inputs| 3/1 |\n"
            "  ZornINP2 |In| 19/19 |ZI2\n"
            "ZornRELAYS5 |Relays| 3/1 |\n"
            "  ZurnRY3 |Relay| 20/20 |ZR3\n"
            "ZornREADERS5 |Reader Locations| 3/1 |\n"
            "  ZurnRDR4 |Reader| 27/27 |ZE4\n"
            "ZornMODULES5 |Modules| 3/1 |\n"
            "  ZurnMOD5 |Module| 21/21 |ZM5\n");
}

TEST_F(NewerFamilyTest, AnErrorEndsOneControllerAndTheNextOneIsBuilt) {
  answer(controllers,
         {{"ID", "Name", "Address"}, {{number(5), "North", "Z5"}, {number(6), "South", "Z6"}}});
  around.database->fail(inputs);
  refresh();
  EXPECT_EQ(childrenText(*tree.find("ZornCTLR5")),
            "ZornDOORS5 |Doors| 3/1 |\nZornINPUTS5 |Inputs| 3/1 |\n");
  EXPECT_EQ(tree.find("ZornCTLR6")->children().size(), 5U);
  EXPECT_FALSE(nodes.complete());
  ASSERT_EQ(around.screen.boxes.size(), 1U);
  EXPECT_THAT(
      around.screen.boxes.front().text,
      testing::MatchesRegex("FLocation.RefreshVn8Hardware: Line: [0-9]+ :statement failed"));
}

TEST_F(NewerFamilyTest, FailingControllerListIsReportedOnce) {
  around.database->fail(controllers);
  refresh();
  EXPECT_TRUE(server.children().empty());
  EXPECT_FALSE(nodes.complete());
  EXPECT_EQ(around.screen.boxes.size(), 1U);
}

}  // namespace
}  // namespace pelorin::test
