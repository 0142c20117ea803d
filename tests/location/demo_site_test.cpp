// The picker over the demonstration site: its whole tree, and a journey in each mode.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "site/site_database.h"
#include "test_paths.h"
#include "tests/fakes/faulty_connection.h"
#include "tests/location/picker_fixture.h"
#include "tests/location/tree_text.h"
#include "tests/site/fresh_site.h"

namespace pelorin::test {
namespace {

using testing::IsEmpty;

class DemoSiteTest : public PickerTest {
 protected:
  DemoSiteTest() {
    around.services->texts[1843] = "Dial-up";
    around.module.setDBConnection(connection);
  }
  void openTree(const char* nodeKey) {
    for (TreeNode* above = node(nodeKey).parent(); above != nullptr; above = above->parent()) {
      picker.tvTree.userExpand(*above, true);
    }
  }

  SiteDatabase site = freshDemonstration();
  std::shared_ptr<Connection> connection = site.connect();
};

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> expectedTree() {
  std::ifstream file(DEMO_TREE);
  return linesOf(std::string(std::istreambuf_iterator<char>(file), {}));
}

TEST_F(DemoSiteTest, WholeTreeNodeByNode) {
  around.services->newerHardware = true;
  open();
  EXPECT_THAT(boxes(), IsEmpty());
  const std::vector<std::string> expected = expectedTree();
  const std::vector<std::string> built = linesOf(treeText(picker.tvTree));
  for (std::size_t line = 0; line < std::min(expected.size(), built.size()); ++line) {
    ASSERT_EQ(built[line], expected[line]) << "line " << line + 1;
  }
  EXPECT_EQ(built.size(), expected.size());
}

TEST_F(DemoSiteTest, OnlyRelaysOfTypeTwoOrFourOfTheNewerFamily) {
  around.services->newerHardware = true;
  open();
  EXPECT_NE(picker.tvTree.find("ZurnRY2"), nullptr);
  EXPECT_NE(picker.tvTree.find("ZurnRY3"), nullptr);
  for (const char* key : {"ZurnRY1", "ZurnRY5", "ZurnRY6", "ZurnRY9", "ZurnRY12"}) {
    EXPECT_EQ(picker.tvTree.find(key), nullptr) << key;
  }
}

TEST_F(DemoSiteTest, WithoutSupportTheNewerFamilyIsAbsent) {
  open();
  EXPECT_EQ(picker.tvTree.find("Zorn1"), nullptr);
  EXPECT_EQ(node("SA").children().size(), 4U);
}

TEST_F(DemoSiteTest, ControllerOfAnUnlistedTypeHasNoFolders) {
  open();
  EXPECT_THAT(node("CA10").children(), IsEmpty());
}

TEST_F(DemoSiteTest, AccountsAndAreasShowNone) {
  open();
  for (const char* grouping : {"CSRAccount1", "CSRArea1"}) {
    click("CSRPoint1");
    EXPECT_EQ(picker.lblLocation.text(), "001.ACC01.AR01.PT01 - Shop window");
    click(grouping);
    EXPECT_EQ(picker.lblLocation.text(), "<None>") << grouping;
    EXPECT_FALSE(picker.cmdMain[0].enabled());
  }
}

TEST_F(DemoSiteTest, AreaWithoutPointsIsALeaf) {
  open();
  EXPECT_THAT(node("CSRArea7").children(), IsEmpty());
}

TEST_F(DemoSiteTest, EveryLocationHasAnAddressOfItsOwn) {
  around.services->newerHardware = true;
  open("multilocation");
  int locations = 0;
  std::vector<const TreeNode*> open{picker.tvTree.roots().front().get()};
  while (!open.empty()) {
    const TreeNode& next = *open.back();
    open.pop_back();
    for (const auto& child : next.children()) open.push_back(child.get());
    if (next.tag.empty() || next.tag.front() == '!') continue;
    doubleClick(next.key);
    ASSERT_EQ(target.lvwLocation.count(), ++locations) << next.key;
  }
  EXPECT_EQ(picker.addedCount(), locations);
  EXPECT_GT(locations, 250);
}

TEST_F(DemoSiteTest, SingleModeByMouse) {
  open();
  openTree("TT39");
  click("TT39");
  EXPECT_EQ(picker.lblLocation.text(), "001.91.016.D02 - Vault");
  picker.userPress(picker.cmdMain[0]);
  EXPECT_EQ(target.text, "001.91.016.D02 - Vault");
  EXPECT_EQ(target.tag, "001.91.016.D02");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(DemoSiteTest, SingleModeByKeyboard) {
  open();
  picker.userFocus(&picker.tvTree);
  for (const char* key : {"SA", "LA1", "YA1"}) click(key);  // arrow keys
  picker.userKeyDown(key_code::enter);
  EXPECT_TRUE(picker.isOpen());
  click("PA2");
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(target.text, "001.02 - Serial port COM3");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(DemoSiteTest, MultiModeByMouseThenClose) {
  open("multilocation");
  for (const char* key : {"TT1", "II1", "TT1", "DVRCAM3", "LA2", "CSRAccount1"}) doubleClick(key);
  ASSERT_EQ(target.lvwLocation.count(), 4);
  EXPECT_EQ(target.lvwLocation.item(1).text, "001.01.001.D01 - Main entrance");
  EXPECT_EQ(target.lvwLocation.item(2).text, "001.01.001.I01 - Reception panic button");
  EXPECT_EQ(target.lvwLocation.item(3).text, "001.DVR01.CAM03 - East stair");
  EXPECT_EQ(target.lvwLocation.item(4).text,
            "\\\\WAREHOUSE.012 -  Lumet Configuration (WAREHOUSE)");
  picker.userPress(picker.cmdMain[1]);
  EXPECT_EQ(target.lvwLocation.count(), 4);
  EXPECT_EQ(target.text, "");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(DemoSiteTest, MultiModeByKeyboardThenTitleBar) {
  open("multilocation");
  picker.userFocus(&picker.tvTree);
  click("TT1");
  picker.userKeyDown(key_code::space);
  click("TT2");
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(target.lvwLocation.count(), 2);
  picker.userClose();
  EXPECT_EQ(target.text, "before");
  EXPECT_FALSE(picker.isOpen());
}

// The connection breaks for one act, at places spread over the whole load.
TEST_F(DemoSiteTest, AFailureAnywhereIsReportedOnceAndTheWindowOpens) {
  around.services->newerHardware = true;
  auto faulty = std::make_shared<FaultyConnection>(*connection);
  around.module.setDBConnection(faulty);
  open();
  const int acts = faulty->acts();
  picker.unload();
  for (int act = 1; act <= acts; act += 11) {
    SCOPED_TRACE(act);
    around.screen.boxes.clear();
    faulty->failAct(act);
    open();
    EXPECT_TRUE(picker.isOpen());
    ASSERT_FALSE(boxes().empty());
    EXPECT_THAT(boxes().front(), testing::EndsWith(" :The connection is broken."));
    const bool populating = boxes().front().starts_with("FLocation.Populate");
    EXPECT_EQ(boxes().size(), populating ? 1U : 2U);
    if (!populating) {
      EXPECT_EQ(boxes().back(), "error in refreshhardware");
    }
    EXPECT_NE(picker.tvTree.find("SA"), nullptr);
    picker.unload();
  }
}

}  // namespace
}  // namespace pelorin::test
