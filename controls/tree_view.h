// A tree of nodes with unique keys. The native tree makes its items when they come into view, so a
// model of a hundred thousand nodes costs the window nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/node_index.h"

namespace pelorin {

class TreeNode {
 public:
  std::string key;  // stays as it was added
  std::string text;
  std::string tag;
  int image = 0;          // 1-based cell of the image list, 0: none
  int selectedImage = 0;  // 0: the same as `image`
  bool expanded = false;

  TreeNode* parent() const noexcept { return parent_; }
  const std::vector<std::unique_ptr<TreeNode>>& children() const noexcept { return children_; }

 private:
  friend class TreeView;
  TreeNode* parent_ = nullptr;
  std::vector<std::unique_ptr<TreeNode>> children_;
};

// The pictures of a tree: cells of 16 x 16 pixels cut from one strip. A pixel is 0xAARRGGBB with
// straight (not premultiplied) alpha. A node may name a cell that is not there: it has no picture.
struct ImageStrip {
  static constexpr int cellSize = 16;
  int cells = 0;
  std::vector<std::uint32_t> pixels;  // cells * 16 wide, 16 high, top row first
};

struct NodeTexts {
  std::string key = {};
  std::string text = {};
  std::string tag = {};
  int image = 0;
  int selectedImage = 0;
};

class TreeView : public Control {
 public:
  TreeView(Parent parent, std::string name, const DesignPlace& design);

  const std::vector<std::unique_ptr<TreeNode>>& roots() const noexcept { return roots_; }
  int count() const noexcept { return static_cast<int>(keys_.size()); }
  // Null when no node has the key.
  TreeNode* find(std::string_view key) const;
  // Adds a root (parent null) or the last child of `parent`. Error 35602 when the key is taken.
  TreeNode& add(TreeNode* parent, NodeTexts texts);
  // The same; null, and `texts` as it was, when the key is taken.
  TreeNode* tryAdd(TreeNode* parent, NodeTexts& texts);
  // Removes the node with everything below it; the selection is lost with it, without an event.
  void remove(TreeNode& node);
  void clear();
  void expand(TreeNode& node, bool expanded = true);

  TreeNode* selectedNode() const noexcept { return selected_; }
  // By the program: shows and remembers it, raises nothing.
  void setSelectedNode(TreeNode* node);

  const ImageStrip& images() const noexcept { return images_; }
  void setImages(ImageStrip images);

  // Every change of the selection by the operator (mouse or keyboard), and a click on a node.
  std::function<void(TreeNode& node)> onNodeClick;
  std::function<void()> onDoubleClick;
  // A character typed into the tree, which then searches for a node by itself.
  std::function<void(char32_t key)> onKeyPress;
  void userSelect(TreeNode& node);
  // A double-click on a node, or Space or Enter on it. It is the selected node by then.
  void userDoubleClick();
  void userKey(char32_t key) const;
  void userExpand(TreeNode& node, bool expanded);

 private:
  void forget(const TreeNode& node);

  std::vector<std::unique_ptr<TreeNode>> roots_;
  NodeIndex keys_;
  TreeNode* selected_ = nullptr;
  ImageStrip images_;
};

}  // namespace pelorin
