#include "summary/summary_grid.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "base/value.h"

namespace pelorin {

namespace {

std::string inOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

// Leaves the header alone, from a grid of one or two rows.
void resetToHeader(Grid& grid) {
  grid.setRows(2);
  grid.setFixedRows(1);
  grid.setRows(1);
}

}  // namespace

void addSummaryRow(Grid& grid, const SummaryCells& cells) {
  std::vector<std::string> texts;
  texts.reserve(cells.size());
  std::ranges::transform(cells, std::back_inserter(texts), inOneLine);
  grid.addRow(std::move(texts));
}

bool isDataRow(const Grid& grid, int row) {
  return row >= 1 && row < grid.rows();
}

SummaryKey keyOf(const Grid& grid, int row) {
  return SummaryKey{grid.cell(row, summary_column::type),
                    parseInt32(grid.cell(row, summary_column::triggerId))};
}

std::optional<SummaryKey> currentKey(const Grid& grid) {
  if (!isDataRow(grid, grid.row())) return std::nullopt;
  return keyOf(grid, grid.row());
}

int rowOf(const Grid& grid, const SummaryKey& key, int place) {
  const std::string id = numberText(key.triggerId);
  const auto shows = [&](int row) {
    return grid.cell(row, summary_column::triggerId) == id &&
           grid.cell(row, summary_column::type) == key.type;
  };
  if (isDataRow(grid, place) && shows(place)) return place;
  for (int row = 1; row < grid.rows(); ++row) {
    if (shows(row)) return row;
  }
  return 0;
}

void removeSummaryRow(Grid& grid, int row) {
  if (grid.rows() != 2) {
    grid.removeItem(row);
    return;
  }
  grid.setFixedRows(0);
  grid.removeItem(row);
  resetToHeader(grid);
}

void removeAllSummaryRows(Grid& grid) {
  if (grid.rows() == 1) {
    grid.setFixedRows(0);
    resetToHeader(grid);
  }
  for (int row = grid.rows() - 1; row >= 1; --row) removeSummaryRow(grid, row);
}

void leaveCaretAt(Grid& grid, int row) {
  grid.setRow(std::clamp(row, 0, grid.rows() - 1));
  grid.clearCurrentRow();
}

}  // namespace pelorin
