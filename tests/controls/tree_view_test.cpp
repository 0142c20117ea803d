// Nodes of a tree, and which of them is selected.
#include "controls/tree_view.h"

#include <gtest/gtest.h>

#include "tests/controls/error_number_of.h"
#include "tests/controls/listening_view.h"

namespace pelorin::test {

namespace {

NodeTexts node(const std::string& key) {
  NodeTexts texts;
  texts.key = key;
  texts.text = "text of " + key;
  return texts;
}

class Nodes : public ::testing::Test {
 protected:
  void SetUp() override {
    tree.add(nullptr, node("root"));
    tree.add(tree.find("root"), node("child"));
    tree.add(tree.find("child"), node("leaf"));
    tree.onNodeClick = [this](const TreeNode& clicked) { clicks.push_back(clicked.key); };
    tree.onDoubleClick = [this] { ++doubleClicks; };
  }

  TreeView tree{noParent, "tv", {}};
  std::vector<std::string> clicks;
  int doubleClicks = 0;
};

}  // namespace

TEST_F(Nodes, StandUnderTheirParents) {
  const TreeNode* leaf = tree.find("LEAF");
  ASSERT_NE(leaf, nullptr) << "whatever the case";
  EXPECT_EQ(leaf->parent(), tree.find("child"));
  EXPECT_EQ(tree.find("root")->children().size(), 1U);
  EXPECT_EQ(tree.count(), 3);
}

TEST_F(Nodes, ATakenKeyIsAnErrorAndChangesNothing) {
  EXPECT_EQ(errorNumberOf([&] { tree.add(nullptr, node("Leaf")); }), error_number::keyNotUnique);
  EXPECT_EQ(tree.count(), 3);
  EXPECT_EQ(tree.roots().size(), 1U);
  EXPECT_EQ(tree.find("leaf")->text, "text of leaf");
}

TEST_F(Nodes, RemovingTakesEverythingBelowAndTheSelectionWithoutAnEvent) {
  tree.setSelectedNode(tree.find("leaf"));
  tree.remove(*tree.find("child"));
  EXPECT_EQ(tree.count(), 1);
  EXPECT_EQ(tree.selectedNode(), nullptr);
  EXPECT_TRUE(clicks.empty());
  tree.add(tree.find("root"), node("leaf"));
  EXPECT_EQ(tree.count(), 2);
}

TEST_F(Nodes, ClearingEmptiesTheTree) {
  tree.setSelectedNode(tree.find("leaf"));
  tree.clear();
  EXPECT_EQ(tree.count(), 0);
  EXPECT_EQ(tree.selectedNode(), nullptr);
  EXPECT_EQ(tree.find("root"), nullptr);
}

TEST_F(Nodes, ASelectionByTheProgramRaisesNothing) {
  const ListeningView view(tree);
  tree.setSelectedNode(tree.find("child"));
  EXPECT_TRUE(view.heard(Aspect::Selection));
  EXPECT_TRUE(clicks.empty());
}

TEST_F(Nodes, TheOperatorClicksAndDoubleClicks) {
  tree.userDoubleClick();
  EXPECT_EQ(doubleClicks, 0) << "no node is selected";
  tree.userSelect(*tree.find("leaf"));
  tree.userSelect(*tree.find("leaf"));
  EXPECT_EQ(clicks, (std::vector<std::string>{"leaf", "leaf"}));
  tree.userDoubleClick();
  EXPECT_EQ(doubleClicks, 1);
}

TEST_F(Nodes, ADisabledTreeTakesNoActs) {
  tree.setEnabled(false);
  tree.userSelect(*tree.find("leaf"));
  EXPECT_EQ(tree.selectedNode(), nullptr);
}

TEST_F(Nodes, ExpandingByTheProgramIsShownAndByTheOperatorRemembered) {
  const ListeningView view(tree);
  tree.expand(*tree.find("root"));
  EXPECT_TRUE(view.heard(Aspect::Items));
  tree.userExpand(*tree.find("root"), false);
  EXPECT_FALSE(tree.find("root")->expanded);
}

}  // namespace pelorin::test
