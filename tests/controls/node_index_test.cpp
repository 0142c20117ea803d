// Finding a tree's nodes by their keys.
#include "controls/node_index.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>

#include "controls/tree_view.h"

namespace pelorin::test {
namespace {

TEST(NodeIndex, EmptyFindsNothing) {
  NodeIndex index;
  TreeNode node;
  EXPECT_EQ(index.find("a"), nullptr);
  index.erase(node);
  EXPECT_EQ(index.size(), 0U);
}

TEST(NodeIndex, KeysAreComparedWithoutRegardToCase) {
  NodeIndex index;
  TreeNode one;
  one.key = "Key";
  TreeNode same;
  same.key = "kEY";
  EXPECT_TRUE(index.insert(one));
  EXPECT_FALSE(index.insert(same));
  EXPECT_EQ(index.find("KEY"), &one);
  index.erase(same);
  EXPECT_EQ(index.find("key"), &one);
  index.clear();
  EXPECT_EQ(index.find("key"), nullptr);
}

// Against a map that is known to be right, with keys added and removed in any order.
TEST(NodeIndex, AgreesWithAMapThroughManyChanges) {
  std::mt19937 random(7);
  NodeIndex index;
  std::map<std::string, std::unique_ptr<TreeNode>> expected;
  for (int step = 0; step < 20000; ++step) {
    const std::string key = "K" + std::to_string(random() % 700);
    const auto found = expected.find(key);
    if (found != expected.end()) {
      EXPECT_EQ(index.find(key), found->second.get());
      index.erase(*found->second);
      expected.erase(found);
    } else {
      EXPECT_EQ(index.find(key), nullptr);
      auto node = std::make_unique<TreeNode>();
      node->key = key;
      EXPECT_TRUE(index.insert(*node));
      expected.emplace(key, std::move(node));
    }
    ASSERT_EQ(index.size(), expected.size());
  }
  for (const auto& [key, node] : expected) EXPECT_EQ(index.find(key), node.get());
}

}  // namespace
}  // namespace pelorin::test
