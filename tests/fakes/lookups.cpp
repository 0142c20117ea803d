#include "tests/fakes/lookups.h"

namespace pelorin::test {

namespace {

template <class List>
std::vector<std::string> textsOf(const List& list) {
  std::vector<std::string> found;
  found.reserve(static_cast<std::size_t>(list.listCount()));
  for (int row = 0; row < list.listCount(); ++row) found.push_back(list.row(row).text);
  return found;
}

TreeNode* firstTagged(const std::vector<std::unique_ptr<TreeNode>>& nodes, const std::string& tag) {
  for (const auto& node : nodes) {
    if (node->tag == tag) return node.get();
    if (TreeNode* below = firstTagged(node->children(), tag)) return below;
  }
  return nullptr;
}

}  // namespace

TreeNode& nodeOf(const TreeView& tree, const std::string& key) {
  TreeNode* found = tree.find(key);
  if (found == nullptr) throw std::logic_error("no node " + key);
  return *found;
}

TreeNode* nodeTagged(const TreeView& tree, const std::string& tag) {
  return firstTagged(tree.roots(), tag);
}

std::vector<std::string> texts(const ComboBox& combo) {
  return textsOf(combo);
}

std::vector<std::string> texts(const ListBox& list) {
  return textsOf(list);
}

std::vector<std::string> numbers(const ListView& events) {
  std::vector<std::string> found;
  for (int row = 1; row <= events.count(); ++row) {
    found.push_back(events.item(row).subItems.front());
  }
  return found;
}

std::string rowText(const Grid& grid, int row) {
  std::string cells;
  for (int column = 0; column < grid.columns(); ++column) cells += grid.cell(row, column) + "|";
  return cells;
}

std::vector<std::string> rowTexts(const Grid& grid) {
  std::vector<std::string> found;
  for (int row = 1; row < grid.rows(); ++row) found.push_back(rowText(grid, row));
  return found;
}

void choose(ComboBox& combo, const std::string& text) {
  for (int row = 0; row < combo.listCount(); ++row) {
    if (combo.row(row).text == text) return combo.userSelect(row);
  }
}

void chooseData(ComboBox& combo, std::int32_t itemData) {
  for (int row = 0; row < combo.listCount(); ++row) {
    if (combo.row(row).itemData == itemData) return combo.userSelect(row);
  }
}

void tick(ListBox& list, const std::string& text) {
  for (int row = 0; row < list.listCount(); ++row) {
    if (list.row(row).text == text) return list.userToggle(row);
  }
}

void check(ListView& events, const std::string& number) {
  for (int row = 1; row <= events.count(); ++row) {
    if (events.item(row).subItems.front() == number) events.userCheck(row, true);
  }
}

Form& OpenForms::form(const std::string& name) const {
  Form* open = shown_.open<Form>(name);
  if (open == nullptr) throw std::logic_error(name + " is not open");
  return *open;
}

bool OpenForms::isOpen(const std::string& name) const {
  return shown_.open<Form>(name) != nullptr;
}

void OpenForms::press(const std::string& formName, const std::string& button) const {
  form(formName).userPress(on<Button>(formName, button));
}

}  // namespace pelorin::test
