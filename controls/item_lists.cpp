#include "controls/item_lists.h"

#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

namespace {

void requireRow(int index, std::size_t count) {
  if (index < 0 || static_cast<std::size_t>(index) >= count) {
    throw RunTimeError(error_number::invalidPropertyValue, "Invalid property value");
  }
}

}  // namespace

ComboBox::ComboBox(Parent parent, std::string name, const DesignPlace& design)
    : Control(parent, ControlKind::ComboBox, std::move(name), design) {}

const ListRow& ComboBox::row(int index) const {
  requireRow(index, rows_.size());
  return rows_[static_cast<std::size_t>(index)];
}

void ComboBox::addItem(const std::string& text, std::int32_t itemData) {
  rows_.push_back(ListRow{text, itemData});
  notify(Aspect::Items);
}

void ComboBox::clear() {
  rows_.clear();
  listIndex_ = -1;
  notify(Aspect::Items);
}

void ComboBox::setListIndex(int index) {
  if (index != -1) requireRow(index, rows_.size());
  if (index == listIndex_) return;
  listIndex_ = index;
  notify(Aspect::Selection);
  if (index != -1 && onClick) onClick();
}

std::int32_t ComboBox::selectedData() const {
  return row(listIndex_).itemData;
}

void ComboBox::userSelect(int index) {
  if (!reachable()) return;
  const bool again = index == listIndex_ && index != -1;
  setListIndex(index);
  if (again && onClick) onClick();
}

ListBox::ListBox(Parent parent, std::string name, const DesignPlace& design)
    : Control(parent, ControlKind::ListBox, std::move(name), design) {}

const ListRow& ListBox::row(int index) const {
  requireRow(index, rows_.size());
  return rows_[static_cast<std::size_t>(index)];
}

void ListBox::addItem(const std::string& text, std::int32_t itemData) {
  rows_.push_back(ListRow{text, itemData});
  notify(Aspect::Items);
}

void ListBox::clear() {
  rows_.clear();
  notify(Aspect::Items);
}

void ListBox::setSelected(int index, bool selected) {
  requireRow(index, rows_.size());
  ListRow& target = rows_[static_cast<std::size_t>(index)];
  if (target.selected == selected) return;
  target.selected = selected;
  notify(Aspect::Checks, index);
  if (onClick) onClick();
}

void ListBox::userToggle(int index) {
  if (reachable()) setSelected(index, !selected(index));
}

}  // namespace pelorin
