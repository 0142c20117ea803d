// The native items of a tree, made only where they can be seen: the children of an item are made
// when it is expanded for the first time.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/tree_view.h"
#include "win32/views/windows_api.h"

namespace pelorin {

class TreeItems {
 public:
  TreeItems(HWND native, const TreeView& tree);

  // Makes the native items agree with the model again, as far as they have been made.
  void follow();
  // Makes the children of an item that is about to be expanded.
  void makeChildren(HTREEITEM handle);
  // Makes whatever is missing up to the node and gives its item.
  HTREEITEM reach(const TreeNode& node);
  // Null when the node is no longer in the model.
  TreeNode* nodeOf(HTREEITEM handle) const;

 private:
  // A node is known by its key, because its address may belong to another one by now.
  struct Item {
    HTREEITEM handle = nullptr;
    std::string key;
    std::string text;
    int image = 0;
    int selectedImage = 0;
    bool hasChildren = false;
    bool childrenMade = false;
    std::vector<std::unique_ptr<Item>> children;
  };
  using Nodes = std::vector<std::unique_ptr<TreeNode>>;

  Item* itemOf(HTREEITEM handle) const;
  std::unique_ptr<Item> make(HTREEITEM parent, HTREEITEM after, const TreeNode& node);
  void followChildren(Item& item, const Nodes& nodes);
  void removeGone(Item& item, const Nodes& nodes);
  void followNode(Item& item, const TreeNode& node);
  void update(Item& item, const TreeNode& node);
  void remove(const Item& item);
  Item* reachItem(const TreeNode& node);

  HWND native_;
  const TreeView& tree_;
  Item root_;
};

}  // namespace pelorin
