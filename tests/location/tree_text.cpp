#include "tests/location/tree_text.h"

namespace pelorin::test {

namespace {

void append(std::string& text, const TreeNode& node, std::size_t depth) {
  const int selected = node.selectedImage == 0 ? node.image : node.selectedImage;
  text += std::string(2 * depth, ' ') + node.key + " |" + node.text + "| " +
          std::to_string(node.image) + "/" + std::to_string(selected) + " |" + node.tag + "\n";
  for (const auto& child : node.children()) append(text, *child, depth + 1);
}

}  // namespace

std::string treeText(const TreeView& tree) {
  std::string text;
  for (const auto& root : tree.roots()) append(text, *root, 0);
  return text;
}

std::string childrenText(const TreeNode& parent) {
  std::string text;
  for (const auto& child : parent.children()) append(text, *child, 0);
  return text;
}

}  // namespace pelorin::test
