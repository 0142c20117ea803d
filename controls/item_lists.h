// Lists of rows with a text and a number: the drop-down list and the list of checked rows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace pelorin {

struct ListRow {
  std::string text;
  std::int32_t itemData = 0;
  bool selected = false;  // list box only
};

// A drop-down list: one row is current, or none (-1).
class ComboBox : public Control {
 public:
  ComboBox(Parent parent, std::string name, const DesignPlace& design);

  int listCount() const noexcept { return static_cast<int>(rows_.size()); }
  const ListRow& row(int index) const;
  void addItem(const std::string& text, std::int32_t itemData = 0);
  // Empties it; the current row becomes -1 without a click.
  void clear();

  int listIndex() const noexcept { return listIndex_; }
  // Raises the click when the index really changes, and only then. -1 selects nothing (no click).
  // Error 380 when there is no such row.
  void setListIndex(int index);
  // Item data of the current row. Error 380 when nothing is selected.
  std::int32_t selectedData() const;

  std::function<void()> onClick;
  // The operator picks a row; picking the current one again raises the click, too.
  void userSelect(int index);

 private:
  std::vector<ListRow> rows_;
  int listIndex_ = -1;
};

// A multiple-selection list in which one click toggles one row; rows are drawn with check marks.
class ListBox : public Control {
 public:
  ListBox(Parent parent, std::string name, const DesignPlace& design);

  int listCount() const noexcept { return static_cast<int>(rows_.size()); }
  const ListRow& row(int index) const;
  void addItem(const std::string& text, std::int32_t itemData = 0);
  void clear();

  bool selected(int index) const { return row(index).selected; }
  // Raises the click when the mark really changes.
  void setSelected(int index, bool selected);

  std::function<void()> onClick;
  void userToggle(int index);

 private:
  std::vector<ListRow> rows_;
};

}  // namespace pelorin
