// A report list: rows of a first text and further texts, each row with an optional unique key, a
// tag and a check mark. Rows are numbered from 1. The native list asks the model for the texts it
// draws.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/text_key.h"
#include "controls/control.h"

namespace pelorin {

struct ListColumn {
  std::string header;
  int width;  // twips
};

struct ListItem {
  std::string key;
  std::string text;
  std::vector<std::string> subItems;  // sub-item 1 is subItems[0]
  std::string tag;
  bool checked = false;
  std::int32_t data = 0;  // what the form keeps with the row
};

// A row on its way into the list, in front of the item that has number `before` until then; count
// + 1: at the end.
struct ListInsertion {
  int before = 0;
  ListItem item;
};

class ListView : public Control {
 public:
  ListView(Parent parent, std::string name, const DesignPlace& design,
           std::vector<ListColumn> columns, bool checkBoxes);

  const std::vector<ListColumn>& columns() const noexcept { return columns_; }
  bool checkBoxes() const noexcept { return checkBoxes_; }

  int count() const noexcept { return static_cast<int>(items_.size()); }
  // Item 1 is the first. Error 35600 when there is no such item.
  const ListItem& item(int index) const;
  // Inserts before the item `index` (count + 1 or 0: at the end) and returns the item for its tag
  // to be set. Error 35602 when the key is not empty and already present (whatever its case).
  ListItem& add(int index, ListItem item);
  // Inserts rows without keys at once, in ascending order of `before`; those with the same one keep
  // their order. Error 35600 when the order is another one.
  void insert(std::vector<ListInsertion> insertions);
  void remove(int index);
  // Removes every item for which `unwanted` answers true, walking from the last to the first.
  void removeIf(const std::function<bool(const ListItem&)>& unwanted);
  void clear();

  void setChecked(int index, bool checked);
  void setAllChecked(bool checked);

  // 0 when nothing is selected.
  int selectedIndex() const noexcept { return selected_; }
  void setSelectedIndex(int index);

  std::function<void()> onSelect;
  std::function<void(int index)> onCheck;
  void userSelect(int index);
  void userCheck(int index, bool checked);

 private:
  std::size_t slot(int index) const;
  void requireAscending(const std::vector<ListInsertion>& insertions) const;
  void forgetKey(const ListItem& item);

  std::vector<ListColumn> columns_;
  bool checkBoxes_;
  std::vector<std::unique_ptr<ListItem>> items_;
  std::unordered_map<std::string, ListItem*, NoCaseHash, NoCaseEqual> keys_;
  int selected_ = 0;
};

}  // namespace pelorin
