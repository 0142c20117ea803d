#include "controls/tree_view.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

TreeView::TreeView(Parent parent, std::string name, const DesignPlace& design)
    : Control(parent, ControlKind::TreeView, std::move(name), design) {}

TreeNode* TreeView::find(std::string_view key) const {
  return keys_.find(key);
}

TreeNode& TreeView::add(TreeNode* parent, NodeTexts texts) {
  TreeNode* added = tryAdd(parent, texts);
  if (added == nullptr) {
    throw RunTimeError(error_number::keyNotUnique, "Key is not unique in collection");
  }
  return *added;
}

TreeNode* TreeView::tryAdd(TreeNode* parent, NodeTexts& texts) {
  auto node = std::make_unique<TreeNode>();
  node->key = std::move(texts.key);
  if (!keys_.insert(*node)) {
    texts.key = std::move(node->key);
    return nullptr;
  }
  node->text = std::move(texts.text);
  node->tag = std::move(texts.tag);
  node->image = texts.image;
  node->selectedImage = texts.selectedImage;
  node->parent_ = parent;
  TreeNode* added = node.get();
  (parent == nullptr ? roots_ : parent->children_).push_back(std::move(node));
  notify(Aspect::Items);
  return added;
}

void TreeView::forget(const TreeNode& node) {
  for (const auto& child : node.children_) forget(*child);
  if (&node == selected_) selected_ = nullptr;
  keys_.erase(node);
}

void TreeView::remove(TreeNode& node) {
  forget(node);
  auto& siblings = node.parent_ == nullptr ? roots_ : node.parent_->children_;
  std::erase_if(siblings, [&node](const auto& sibling) { return sibling.get() == &node; });
  notify(Aspect::Items);
}

void TreeView::clear() {
  selected_ = nullptr;
  keys_.clear();
  roots_.clear();
  notify(Aspect::Items);
}

void TreeView::expand(TreeNode& node, bool expanded) {
  if (node.expanded == expanded) return;
  node.expanded = expanded;
  notify(Aspect::Items);
}

void TreeView::setSelectedNode(TreeNode* node) {
  if (node == selected_) return;
  selected_ = node;
  notify(Aspect::Selection);
}

void TreeView::setImages(ImageStrip images) {
  images_ = std::move(images);
  notify(Aspect::Columns);
}

void TreeView::userSelect(TreeNode& node) {
  if (!reachable()) return;
  setSelectedNode(&node);
  if (onNodeClick) onNodeClick(node);
}

void TreeView::userDoubleClick() {
  if (reachable() && selected_ != nullptr && onDoubleClick) onDoubleClick();
}

void TreeView::userKey(char32_t key) const {
  if (reachable() && onKeyPress) onKeyPress(key);
}

void TreeView::userExpand(TreeNode& node, bool expanded) {
  node.expanded = expanded;
}

}  // namespace pelorin
