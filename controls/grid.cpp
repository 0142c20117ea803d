#include "controls/grid.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

namespace {

[[noreturn]] void invalidProperty() {
  throw RunTimeError(error_number::invalidPropertyValue, "Invalid property value");
}

}  // namespace

Grid::Grid(Parent parent, std::string name, const DesignPlace& design, int columns)
    : Control(parent, ControlKind::Grid, std::move(name), design),
      widths_(static_cast<std::size_t>(columns), 960),
      cells_(2, std::vector<std::string>(static_cast<std::size_t>(columns))) {}

void Grid::checkColumn(int column) const {
  if (column < 0 || column >= columns()) invalidProperty();
}

std::size_t Grid::slot(int row) const {
  if (row < 0 || row >= rows()) invalidProperty();
  return static_cast<std::size_t>(row);
}

int Grid::columnWidth(int column) const {
  checkColumn(column);
  return widths_[static_cast<std::size_t>(column)];
}

void Grid::setColumnWidth(int column, int twips) {
  checkColumn(column);
  widths_[static_cast<std::size_t>(column)] = twips;
  notify(Aspect::Columns);
}

void Grid::setRows(int rows) {
  if (rows < fixedRows_) invalidProperty();
  cells_.resize(static_cast<std::size_t>(rows), std::vector<std::string>(widths_.size()));
  row_ = std::min(row_, rows - 1);
  caretRow_ = std::min(caretRow_, rows - 1);
  notify(Aspect::Items);
}

void Grid::setFixedRows(int fixed) {
  if (fixed < 0 || fixed >= rows()) invalidProperty();
  fixedRows_ = fixed;
  notify(Aspect::Items);
}

const std::string& Grid::cell(int row, int column) const {
  checkColumn(column);
  return cells_[slot(row)][static_cast<std::size_t>(column)];
}

void Grid::setCell(int row, int column, const std::string& text) {
  checkColumn(column);
  cells_[slot(row)][static_cast<std::size_t>(column)] = text;
  notify(row < fixedRows_ ? Aspect::Columns : Aspect::Item, row);
}

void Grid::addRow(std::vector<std::string> cells) {
  cells.resize(widths_.size());
  cells_.push_back(std::move(cells));
  notify(Aspect::Items);
}

void Grid::removeItem(int row) {
  slot(row);
  if (fixedRows_ > 0 && rows() - fixedRows_ <= 1) {
    throw RunTimeError(error_number::lastNonFixedRow, "Cannot remove last non-fixed row");
  }
  cells_.erase(cells_.begin() + row);
  if (row_ > row || row_ >= rows()) --row_;
  if (caretRow_ > row || caretRow_ >= rows()) --caretRow_;
  notify(Aspect::Items);
}

void Grid::setRow(int row) {
  if (row < 0 || row >= rows()) invalidProperty();
  row_ = row;
  caretRow_ = row;
  notify(Aspect::Selection);
}

void Grid::clearCurrentRow() {
  row_ = 0;
  notify(Aspect::Selection);
}

void Grid::setTopRow(int row) {
  topRow_ = std::clamp(row, 0, std::max(0, rows() - 1));
  notify(Aspect::Selection);
}

void Grid::userSelectRow(int row) {
  if (!reachable() || row < fixedRows_ || row >= rows()) return;
  row_ = row;
  caretRow_ = row;
}

void Grid::userDoubleClick() {
  if (reachable() && row_ >= fixedRows_ && row_ > 0 && onDoubleClick) onDoubleClick();
}

}  // namespace pelorin
