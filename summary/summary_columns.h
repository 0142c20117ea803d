// The columns of the summary: one table says each column's header, its width, and what it shows of
// a trigger action of either kind.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "database/record_set.h"
#include "summary/load_texts.h"

namespace pelorin {

// In the order of the table. The last two are hidden and carry the row's key.
namespace summary_column {
enum : int { trigger, location, action, type, device, triggerId, eventId, count };
}  // namespace summary_column

// A trigger action as it was read: its row, and the texts that the row only refers to.
struct CctvTrigger {
  const RecordSet& row;
  LoadTexts& texts;
};
struct DeviceTrigger {
  const RecordSet& row;
  LoadTexts& texts;
  std::string type;
  std::optional<std::string> recorder;  // its name, when the action is a recorder's
};

struct SummaryColumn {
  const char* header;
  int width;  // twips; 0 hides the column
  std::string (*ofCctv)(const CctvTrigger& trigger);
  std::string (*ofDevice)(const DeviceTrigger& trigger);
};

extern const std::array<SummaryColumn, summary_column::count> summaryColumns;

using SummaryCells = std::array<std::string, summary_column::count>;

// Reads column by column, from the left.
SummaryCells cellsOf(const CctvTrigger& trigger);
SummaryCells cellsOf(const DeviceTrigger& trigger);

}  // namespace pelorin
