// The folders under a controller, by its type.
#include "location/controller_folders.h"

#include <gmock/gmock.h>

#include "tests/location/small_site.h"
#include "tests/location/tree_text.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControllerFoldersTest : public testing::Test {
 protected:
  void add(std::uint8_t type, std::int32_t id = 8) { folders.AddControllerFolders(type, id, top); }
  TreeNode& fill(const std::string& key) {
    TreeNode& folder = tree.add(&top, {key, "folder"});
    folders.AddFolderInfo(folder);
    return folder;
  }
  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  std::vector<std::string> statements() const { return around.database->statements(); }

  Surroundings around;
  TreeView tree{noParent, "tvTree", {}};
  TreeNode& top = tree.add(nullptr, {"top", "Controller"});
  LocationNodes nodes{around.module, tree, [] { return true; }};
  ControllerFolders folders{nodes};
};

TEST_F(ControllerFoldersTest, TypeSevenHasVirtualRelays) {
  add(7);
  EXPECT_EQ(childrenText(top),
            "TA8 |Doors| 3/1 |\nIA8 |Inputs| 3/1 |\nRA8 |Readers| 3/1 |\nOA8 |Relays| 3/1 |\n"
            "OX8 |Virtual Relays| 3/1 |\n");
}

TEST_F(ControllerFoldersTest, DoorTypesHaveExpansionFoldersInThisOrder) {
  for (const std::uint8_t type : std::vector<std::uint8_t>{3, 4, 8, 9, 11, 15}) {
    TreeNode& controller = tree.add(nullptr, {"CA" + std::to_string(type), "c"});
    folders.AddControllerFolders(type, type, controller);
    const std::string id = std::to_string(type);
    EXPECT_EQ(childrenText(controller),
              "TA" + id + " |Doors| 3/1 |\nIX" + id + " |Expansion Inputs| 3/1 |\nOX" + id +
                  " |Expansion Relays| 3/1 |\nIA" + id + " |Inputs| 3/1 |\nRA" + id +
                  " |Readers| 3/1 |\nOA" + id + " |Relays| 3/1 |\n");
  }
}

TEST_F(ControllerFoldersTest, ReaderTypesHaveThreeFolders) {
  for (const std::uint8_t type : std::vector<std::uint8_t>{5, 6}) {
    TreeNode& controller = tree.add(nullptr, {"CA" + std::to_string(type), "c"});
    folders.AddControllerFolders(type, type, controller);
    const std::string id = std::to_string(type);
    EXPECT_EQ(childrenText(controller), "IX" + id + " |Expansion Inputs| 3/1 |\nOX" + id +
                                            " |Expansion Relays| 3/1 |\nRA" + id +
                                            " |Readers| 3/1 |\n");
  }
}

TEST_F(ControllerFoldersTest, AnyOtherTypeHasNoFolders) {
  for (int type = 0; type < 256; ++type) {
    switch (type) {
      case 3:
      case 4:
      case 5:
      case 6:
      case 7:
      case 8:
      case 9:
      case 11:
      case 15:
        continue;
      default:
        add(static_cast<std::uint8_t>(type));
    }
  }
  EXPECT_THAT(top.children(), IsEmpty());
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(ControllerFoldersTest, EachFolderIsFilledRightAfterItIsAdded) {
  add(7);
  EXPECT_THAT(
      statements(),
      ElementsAre(
          "SELECT DoorID, DoorName, DoorIndex, Address FROM Doors WHERE Active = 1 AND "
          "Visible = 1 AND ControllerID = 8 ORDER BY DoorName ",
          "Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
          "Select * From Readers Where BelongToDoor = 0 and ControllerID = 8 Order by "
          "[Name]",
          "Select * From Outputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = "
          "8 Order By [Index]",
          "Select * From PanelBasicSetups Where ControllerID = 8",
          "Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex"));
}

TEST_F(ControllerFoldersTest, Doors) {
  answer(
      "SELECT DoorID, DoorName, DoorIndex, Address FROM Doors WHERE Active = 1 AND Visible = 1 AND "
      "ControllerID = 8 ORDER BY DoorName ",
      {{"DoorID", "DoorName", "DoorIndex", "Address"},
       {{number(2), "Alpha", number(1), "D2"}, {number(1), "Beta", number(2), "D1"}}});
  EXPECT_EQ(childrenText(fill("TA8")), "TT2 |Alpha| 17/17 |D2\nTT1 |Beta| 17/17 |D1\n");
}

TEST_F(ControllerFoldersTest, Inputs) {
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
         {{"InputID", "Name", "Address"}, {{number(4), "Window", "I4"}}});
  EXPECT_EQ(childrenText(fill("IA8")), "II4 |Window| 19/19 |I4\n");
}

TEST_F(ControllerFoldersTest, Relays) {
  answer(
      "Select * From Outputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8 Order By "
      "[Index]",
      {{"OutputID", "name", "Address"}, {{number(4), "Siren", "O4"}}});
  EXPECT_EQ(childrenText(fill("OA8")), "OO4 |Siren| 20/20 |O4\n");
}

TEST_F(ControllerFoldersTest, Readers) {
  answer("Select * From Readers Where BelongToDoor = 0 and ControllerID = 8 Order by [Name]",
         {{"ReaderID", "Name", "Address"}, {{number(4), "Gate", "R4"}}});
  EXPECT_EQ(childrenText(fill("RA8")), "RR4 |Gate| 27/27 |R4\n");
}

TEST_F(ControllerFoldersTest, CamerasOfASwitcherFolder) {
  answer("Select * From CCTV_Cameras Where SwitcherID = 8",
         {{"ID", "Name", "Address"}, {{number(4), "Yard", "X4"}}});
  EXPECT_EQ(childrenText(fill("XD8")), "CC4 |Yard| 44/44 |X4\n");
}

TEST_F(ControllerFoldersTest, ExpansionInputsUpToTheNumberFitted) {
  answer("Select * From PanelBasicSetups Where ControllerID = 8", {{"nxinputs"}, {{number(2)}}});
  answer("Select * from ExpInputs Where ControllerID = 8 Order By InputIndex",
         {{"ExpInputID", "InputIndex", "Name", "Address"},
          {{number(1), number(1), "a", "A"},
           {number(2), number(2), "b", "B"},
           {number(3), number(3), "c", "C"}}});
  EXPECT_EQ(childrenText(fill("IX8")), "XI1 |a| 42/42 |A\nXI2 |b| 42/42 |B\n");
}

TEST_F(ControllerFoldersTest, ExpansionRelaysOfTheFittedBoards) {
  answer("Select * From PanelBasicSetups Where ControllerID = 8",
         {{"ef_reb64", "ef_reb1", "ef_reb2", "ef_reb3", "ef_reb4", "ef_reb5", "ef_reb6", "ef_reb7",
           "ef_reb8"},
          {{false, false, true, false, false, false, false, false, false}}});
  answer("Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex",
         {{"ExpOutputID", "OutputIndex", "name", "Address"},
          {{number(1), number(8), "a", "A"},
           {number(2), number(9), "b", "B"},
           {number(3), number(16), "c", "C"},
           {number(4), number(17), "d", "D"}}});
  EXPECT_EQ(childrenText(fill("OX8")), "XO2 |b| 35/35 |B\nXO3 |c| 35/35 |C\n");
}

TEST_F(ControllerFoldersTest, LargeRelayBoardListsAllWithItsOwnPicture) {
  answer("Select * From PanelBasicSetups Where ControllerID = 8",
         {{"ef_reb64", "ef_reb1", "ef_reb2", "ef_reb3", "ef_reb4", "ef_reb5", "ef_reb6", "ef_reb7",
           "ef_reb8"},
          {{number(1), Null{}, Null{}, Null{}, Null{}, Null{}, Null{}, Null{}, Null{}}}});
  answer("Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex",
         {{"ExpOutputID", "OutputIndex", "name", "Address"}, {{number(1), number(65), "a", "A"}}});
  EXPECT_EQ(childrenText(fill("OX8")), "XO1 |a| 36/36 |A\n");
}

TEST_F(ControllerFoldersTest, WithoutSetUpRowNoExpansionItemIsListedThoughBothStatementsRun) {
  answer("Select * from ExpInputs Where ControllerID = 8 Order By InputIndex",
         {{"ExpInputID", "InputIndex", "Name", "Address"}, {{number(1), number(0), "a", "A"}}});
  answer("Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex",
         {{"ExpOutputID", "OutputIndex", "name", "Address"}, {{number(1), number(1), "a", "A"}}});
  EXPECT_EQ(childrenText(fill("IX8")), "");
  EXPECT_EQ(childrenText(fill("OX8")), "");
  EXPECT_THAT(statements(),
              ElementsAre("Select * From PanelBasicSetups Where ControllerID = 8",
                          "Select * from ExpInputs Where ControllerID = 8 Order By InputIndex",
                          "Select * From PanelBasicSetups Where ControllerID = 8",
                          "Select * from ExpOutputs Where ControllerID =8 Order By OutputIndex"));
}

TEST_F(ControllerFoldersTest, ControllerNumberIsTheRestOfTheFoldersKey) {
  fill("IA12345");
  EXPECT_THAT(statements(), ElementsAre("Select * From Inputs Where BelongToDoor = 0 and Visible = "
                                        "1 and ControllerID = 12345"));
}

TEST_F(ControllerFoldersTest, FolderOfAnUnknownKindStaysEmpty) {
  EXPECT_EQ(childrenText(fill("QQ8")), "");
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(ControllerFoldersTest, ItemKeyIsTheFirstColumnWhateverItsName) {
  answer("Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = 8",
         {{"No", "InputID", "Name", "Address"}, {{number(9), number(4), "Window", "I4"}}});
  EXPECT_EQ(childrenText(fill("IA8")), "II9 |Window| 19/19 |I4\n");
}

}  // namespace
}  // namespace pelorin::test
