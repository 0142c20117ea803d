// The native tree over its model.
#include "driver/tree.h"

#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"
#include "win32/views/windows_api.h"

namespace pelorin::test {

namespace {

class Tree : public Desk {
 protected:
  void openTree() {
    form.tabs.setTab(1);
    open(form);
    tree = find(form, "tvTree");
  }
  HTREEITEM root() const { return driver::childrenOf(tree, nullptr).front(); }
  HTREEITEM child(HTREEITEM parent, std::size_t index = 0) const {
    return driver::childrenOf(tree, parent).at(index);
  }
  int itemCount() const { return static_cast<int>(TreeView_GetCount(tree)); }
  void expandByOperator(HTREEITEM item) {
    TreeView_SelectItem(tree, item);
    press(VK_RIGHT);
  }
  void clickItem(HTREEITEM item) { click(tree, driver::nodePlace(tree, item)); }

  SampleForm form;
  HWND tree = nullptr;
};

}  // namespace

TEST_F(Tree, OnlyNodesThatCanBeSeenAreMade) {
  openTree();
  EXPECT_EQ(itemCount(), 4);
  EXPECT_TRUE(driver::isExpanded(tree, root()));
  SetFocus(tree);
  expandByOperator(child(root(), 1));
  EXPECT_EQ(itemCount(), 8);
  EXPECT_EQ(driver::nodeText(tree, child(child(root(), 1), 3)), "Door 3");
  EXPECT_TRUE(form.tvTree.find("folder1")->expanded);
}

TEST_F(Tree, OfAHundredThousandNodesThoseInViewAreMade) {
  for (int i = 0; i < 1000; ++i) {
    const std::string folder = "f" + std::to_string(i);
    form.tvTree.add(form.tvTree.find("root"), {folder, folder, "", 1});
    for (int j = 0; j < 100; ++j) {
      form.tvTree.add(form.tvTree.find(folder), {folder + "." + std::to_string(j), "x", "", 1});
    }
  }
  openTree();
  EXPECT_EQ(itemCount(), 1004);
}

TEST_F(Tree, EveryChangeOfTheSelectionByTheOperatorIsANodeClick) {
  openTree();
  clickItem(child(root(), 0));
  EXPECT_EQ(form.tvTree.selectedNode(), form.tvTree.find("folder0"));
  press(VK_DOWN);
  EXPECT_EQ(form.tvTree.selectedNode(), form.tvTree.find("folder1"));
  EXPECT_EQ(form.count("node folder0"), 1);
  EXPECT_EQ(form.count("node folder1"), 1);
}

TEST_F(Tree, AClickOnTheSelectedNodeIsANodeClickToo) {
  openTree();
  clickItem(child(root(), 0));
  // Not so soon that it would be a double-click.
  const DWORD start = GetTickCount();
  pumpUntil([&] { return GetTickCount() - start > GetDoubleClickTime(); });
  clickItem(child(root(), 0));
  EXPECT_EQ(form.count("node folder0"), 2);
}

TEST_F(Tree, ADoubleClickOnANodeReachesTheFormAndOneOnEmptySpaceDoesNot) {
  openTree();
  SetFocus(tree);
  expandByOperator(child(root(), 0));
  const HTREEITEM door = child(child(root(), 0), 0);
  clickItem(door);
  clickItem(door);
  EXPECT_EQ(form.count("double-click tvTree"), 1);
  EXPECT_EQ(form.tvTree.selectedNode(), form.tvTree.find("folder0.0"));
  RECT area{};
  GetClientRect(tree, &area);
  click(tree, {area.right - 5, area.bottom - 5});
  click(tree, {area.right - 5, area.bottom - 5});
  EXPECT_EQ(form.count("double-click tvTree"), 1);
}

TEST_F(Tree, TypedCharactersReachTheModelAndTheSearchOfTheTree) {
  openTree();
  SetFocus(tree);
  std::u32string typed;
  form.tvTree.onKeyPress = [&](char32_t key) { typed += key; };
  clickItem(root());
  type(L"f");
  EXPECT_EQ(form.tvTree.selectedNode(), form.tvTree.find("folder0"));
  type(L" ");
  EXPECT_EQ(typed, U"f ");
}

TEST_F(Tree, ASelectionByTheProgramIsShownAndRaisesNothing) {
  openTree();
  form.tvTree.setSelectedNode(form.tvTree.find("folder2.1"));
  pump();
  EXPECT_EQ(driver::nodeText(tree, driver::selectedNode(tree)), "Door 1");
  EXPECT_EQ(form.count("node folder2.1"), 0);
}

TEST_F(Tree, NodesAddedAndRemovedLaterAreFollowed) {
  openTree();
  SetFocus(tree);
  expandByOperator(child(root(), 1));
  form.tvTree.remove(*form.tvTree.find("folder0"));
  form.tvTree.remove(*form.tvTree.find("folder1.2"));
  form.tvTree.add(form.tvTree.find("folder1"), {"late", "Late", "", 1});
  form.tvTree.add(form.tvTree.find("root"), {"last", "Last", "", 1});
  pump();
  EXPECT_EQ(driver::nodeText(tree, child(root(), 0)), "Folder 1");
  EXPECT_EQ(driver::nodeText(tree, child(root(), 2)), "Last");
  EXPECT_EQ(driver::nodeText(tree, child(child(root(), 0), 2)), "Door 3");
  EXPECT_EQ(driver::nodeText(tree, child(child(root(), 0), 3)), "Late");
  EXPECT_EQ(itemCount(), 8);
}

TEST_F(Tree, ANodeThatTakesTheKeyOfARemovedOneIsTheNewNode) {
  openTree();
  form.tvTree.remove(*form.tvTree.find("folder0"));
  form.tvTree.add(form.tvTree.find("root"), {"folder0", "Second life", "", 1});
  pump();
  clickItem(child(root(), 2));
  EXPECT_EQ(form.tvTree.selectedNode(), form.tvTree.find("folder0"));
  EXPECT_EQ(driver::nodeText(tree, driver::selectedNode(tree)), "Second life");
}

TEST_F(Tree, AClearedTreeIsEmpty) {
  openTree();
  form.tvTree.clear();
  pump();
  EXPECT_EQ(itemCount(), 0);
}

TEST_F(Tree, PicturesAreCutFromTheStrip) {
  ImageStrip strip;
  strip.cells = 3;
  strip.pixels.assign(3 * 16 * 16, 0xFF00FF00U);
  form.tvTree.setImages(strip);
  openTree();
  const auto images = reinterpret_cast<HIMAGELIST>(SendMessageW(tree, TVM_GETIMAGELIST, 0, 0));
  EXPECT_EQ(ImageList_GetImageCount(images), 3);
}

}  // namespace pelorin::test
