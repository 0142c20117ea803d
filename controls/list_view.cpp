#include "controls/list_view.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

namespace {

constexpr std::int32_t indexOutOfBounds = 35600;

}  // namespace

ListView::ListView(Parent parent, std::string name, const DesignPlace& design,
                   std::vector<ListColumn> columns, bool checkBoxes)
    : Control(parent, ControlKind::ListView, std::move(name), design),
      columns_(std::move(columns)),
      checkBoxes_(checkBoxes) {}

std::size_t ListView::slot(int index) const {
  if (index < 1 || index > count()) throw RunTimeError(indexOutOfBounds, "Index out of bounds");
  return static_cast<std::size_t>(index - 1);
}

const ListItem& ListView::item(int index) const {
  return *items_[slot(index)];
}

ListItem& ListView::add(int index, ListItem item) {
  if (!item.key.empty() && keys_.contains(item.key)) {
    throw RunTimeError(error_number::keyNotUnique, "Key is not unique in collection");
  }
  const std::size_t at = index == 0 || index == count() + 1 ? items_.size() : slot(index);
  auto owned = std::make_unique<ListItem>(std::move(item));
  ListItem& added = *owned;
  items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(at), std::move(owned));
  if (!added.key.empty()) keys_.emplace(added.key, &added);
  if (selected_ > static_cast<int>(at)) ++selected_;
  notify(Aspect::Items);
  return added;
}

void ListView::requireAscending(const std::vector<ListInsertion>& insertions) const {
  int least = 1;
  for (const ListInsertion& insertion : insertions) {
    if (insertion.before < least || insertion.before > count() + 1) {
      throw RunTimeError(indexOutOfBounds, "Index out of bounds");
    }
    least = insertion.before;
  }
}

void ListView::insert(std::vector<ListInsertion> insertions) {
  if (insertions.empty()) return;
  requireAscending(insertions);
  std::vector<std::unique_ptr<ListItem>> merged;
  merged.reserve(items_.size() + insertions.size());
  auto rest = items_.begin();
  const auto moveUpTo = [&](std::vector<std::unique_ptr<ListItem>>::iterator end) {
    merged.insert(merged.end(), std::make_move_iterator(rest), std::make_move_iterator(end));
    rest = end;
  };
  int passed = 0;
  for (ListInsertion& insertion : insertions) {
    moveUpTo(items_.begin() + (insertion.before - 1));
    merged.push_back(std::make_unique<ListItem>(std::move(insertion.item)));
    if (insertion.before <= selected_) ++passed;
  }
  moveUpTo(items_.end());
  items_ = std::move(merged);
  selected_ += passed;
  notify(Aspect::Items);
}

void ListView::forgetKey(const ListItem& item) {
  if (!item.key.empty()) keys_.erase(item.key);
}

void ListView::remove(int index) {
  const std::size_t at = slot(index);
  forgetKey(*items_[at]);
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(at));
  if (selected_ == index) {
    selected_ = 0;
  } else if (selected_ > index) {
    --selected_;
  }
  notify(Aspect::Items);
}

void ListView::removeIf(const std::function<bool(const ListItem&)>& unwanted) {
  const ListItem* selected = selected_ == 0 ? nullptr : items_[slot(selected_)].get();
  std::vector<bool> drop(items_.size());
  for (std::size_t at = items_.size(); at-- > 0;) drop[at] = unwanted(*items_[at]);
  std::size_t kept = 0;
  selected_ = 0;
  for (std::size_t at = 0; at < items_.size(); ++at) {
    if (drop[at]) {
      forgetKey(*items_[at]);
      continue;
    }
    if (kept != at) items_[kept] = std::move(items_[at]);
    ++kept;
    if (items_[kept - 1].get() == selected) selected_ = static_cast<int>(kept);
  }
  if (kept == items_.size()) return;
  items_.resize(kept);
  notify(Aspect::Items);
}

void ListView::clear() {
  items_.clear();
  keys_.clear();
  selected_ = 0;
  notify(Aspect::Items);
}

void ListView::setChecked(int index, bool checked) {
  ListItem& target = *items_[slot(index)];
  if (target.checked == checked) return;
  target.checked = checked;
  notify(Aspect::Checks, index);
}

void ListView::setAllChecked(bool checked) {
  for (auto& item : items_) item->checked = checked;
  notify(Aspect::Checks);
}

void ListView::setSelectedIndex(int index) {
  if (index != 0) slot(index);
  if (index == selected_) return;
  selected_ = index;
  notify(Aspect::Selection, index);
}

void ListView::userSelect(int index) {
  if (!reachable()) return;
  setSelectedIndex(index);
  if (onSelect) onSelect();
}

void ListView::userCheck(int index, bool checked) {
  if (!reachable() || item(index).checked == checked) return;
  setChecked(index, checked);
  if (onCheck) onCheck(index);
}

}  // namespace pelorin
