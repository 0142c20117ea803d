// The rows of the summary's grid.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/grid.h"
#include "summary/summary_columns.h"

namespace pelorin {

// Which trigger a row shows: its ID is unique within its type.
struct SummaryKey {
  std::string type;
  std::int32_t triggerId = 0;
  bool operator==(const SummaryKey&) const = default;
};

// Adds the row at the end. A TAB or line break inside a text becomes a blank: a cell is one line.
void addSummaryRow(Grid& grid, const SummaryCells& cells);

// Whether the row is one that can be edited and deleted.
bool isDataRow(const Grid& grid, int row);
SummaryKey keyOf(const Grid& grid, int row);
// The trigger of the current row, if there is one.
std::optional<SummaryKey> currentKey(const Grid& grid);
// The row that shows the trigger: the one at `place` if it does, else the first; 0 when none does.
// A trigger can be listed twice, and the list can have been loaded again.
int rowOf(const Grid& grid, const SummaryKey& key, int place = 0);

// Both work around the grid's rule that the last row that is not fixed cannot be removed.
void removeSummaryRow(Grid& grid, int row);
void removeAllSummaryRows(Grid& grid);

// Nothing is current; the keyboard goes on from `row`, or from the row nearest to it.
void leaveCaretAt(Grid& grid, int row);

}  // namespace pelorin
