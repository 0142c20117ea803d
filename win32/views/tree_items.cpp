#include "win32/views/tree_items.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "win32/text/utf16.h"

namespace pelorin {

namespace {

int imageIndex(int image, int cells) {
  return image >= 1 && image <= cells ? image - 1 : I_IMAGENONE;
}

TVITEMW nativeItem(const TreeNode& node, int cells, std::wstring& text) {
  text = toWide(node.text);
  TVITEMW item{};
  item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
  item.pszText = text.data();
  item.iImage = imageIndex(node.image, cells);
  item.iSelectedImage =
      node.selectedImage == 0 ? item.iImage : imageIndex(node.selectedImage, cells);
  item.cChildren = node.children().empty() ? 0 : 1;
  return item;
}

}  // namespace

TreeItems::TreeItems(HWND native, const TreeView& tree) : native_(native), tree_(tree) {
  root_.handle = TVI_ROOT;
  root_.childrenMade = true;
}

TreeItems::Item* TreeItems::itemOf(HTREEITEM handle) const {
  if (handle == nullptr) return nullptr;
  TVITEMW item{};
  item.mask = TVIF_PARAM | TVIF_HANDLE;
  item.hItem = handle;
  if (SendMessageW(native_, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == 0) {
    return nullptr;
  }
  return reinterpret_cast<Item*>(item.lParam);
}

TreeNode* TreeItems::nodeOf(HTREEITEM handle) const {
  const Item* item = itemOf(handle);
  return item == nullptr ? nullptr : tree_.find(item->key);
}

std::unique_ptr<TreeItems::Item> TreeItems::make(HTREEITEM parent, HTREEITEM after,
                                                 const TreeNode& node) {
  auto made = std::make_unique<Item>();
  made->key = node.key;
  made->text = node.text;
  made->image = node.image;
  made->selectedImage = node.selectedImage;
  made->hasChildren = !node.children().empty();
  std::wstring text;
  TVINSERTSTRUCTW insertion{};
  insertion.hParent = parent;
  insertion.hInsertAfter = after;
  insertion.item = nativeItem(node, tree_.images().cells, text);
  insertion.item.mask |= TVIF_PARAM;
  insertion.item.lParam = reinterpret_cast<LPARAM>(made.get());
  made->handle = reinterpret_cast<HTREEITEM>(
      SendMessageW(native_, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
  return made;
}

void TreeItems::remove(const Item& item) {
  TreeView_DeleteItem(native_, item.handle);
}

void TreeItems::follow() {
  followChildren(root_, tree_.roots());
}

void TreeItems::removeGone(Item& item, const Nodes& nodes) {
  std::unordered_set<std::string_view> keys;
  for (const auto& node : nodes) keys.insert(node->key);
  std::erase_if(item.children, [&](const std::unique_ptr<Item>& child) {
    if (keys.contains(child->key)) return false;
    remove(*child);
    return true;
  });
}

// What is left after removing stands in the model's order, as nodes never move among siblings: new
// ones are put in where they appear.
void TreeItems::followChildren(Item& item, const Nodes& nodes) {
  if (!item.children.empty()) removeGone(item, nodes);
  std::vector<std::unique_ptr<Item>> before = std::exchange(item.children, {});
  item.children.reserve(nodes.size());
  auto next = before.begin();
  HTREEITEM after = TVI_FIRST;
  for (const auto& node : nodes) {
    if (next != before.end() && (*next)->key == node->key) {
      item.children.push_back(std::move(*next++));
    } else {
      item.children.push_back(make(item.handle, next == before.end() ? TVI_LAST : after, *node));
    }
    after = item.children.back()->handle;
    followNode(*item.children.back(), *node);
  }
  // Only a node that was removed and added again in another place is left over.
  for (; next != before.end(); ++next) remove(**next);
}

void TreeItems::followNode(Item& item, const TreeNode& node) {
  update(item, node);
  if (node.expanded && !item.childrenMade && !node.children().empty()) item.childrenMade = true;
  if (item.childrenMade) followChildren(item, node.children());
  if (node.children().empty()) return;
  const bool isExpanded =
      (TreeView_GetItemState(native_, item.handle, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
  if (isExpanded != node.expanded) {
    TreeView_Expand(native_, item.handle, node.expanded ? TVE_EXPAND : TVE_COLLAPSE);
  }
}

void TreeItems::update(Item& item, const TreeNode& node) {
  const bool hasChildren = !node.children().empty();
  if (item.text == node.text && item.image == node.image && item.hasChildren == hasChildren &&
      item.selectedImage == node.selectedImage) {
    return;
  }
  item.text = node.text;
  item.image = node.image;
  item.selectedImage = node.selectedImage;
  item.hasChildren = hasChildren;
  std::wstring text;
  TVITEMW native = nativeItem(node, tree_.images().cells, text);
  native.mask |= TVIF_HANDLE;
  native.hItem = item.handle;
  SendMessageW(native_, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&native));
}

void TreeItems::makeChildren(HTREEITEM handle) {
  Item* item = itemOf(handle);
  const TreeNode* node = item == nullptr ? nullptr : tree_.find(item->key);
  if (node == nullptr || item->childrenMade) return;
  item->childrenMade = true;
  followChildren(*item, node->children());
}

TreeItems::Item* TreeItems::reachItem(const TreeNode& node) {
  Item* parent = &root_;
  if (node.parent() != nullptr) {
    parent = reachItem(*node.parent());
    if (parent == nullptr) return nullptr;
    if (!parent->childrenMade) makeChildren(parent->handle);
  }
  const auto found = std::find_if(parent->children.begin(), parent->children.end(),
                                  [&](const auto& child) { return child->key == node.key; });
  return found == parent->children.end() ? nullptr : found->get();
}

HTREEITEM TreeItems::reach(const TreeNode& node) {
  const Item* item = reachItem(node);
  return item == nullptr ? nullptr : item->handle;
}

}  // namespace pelorin
