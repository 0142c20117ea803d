#include "summary/summary_columns.h"

#include <algorithm>

#include "base/value.h"

namespace pelorin {

using Cctv = const CctvTrigger&;
using Device = const DeviceTrigger&;

const std::array<SummaryColumn, summary_column::count> summaryColumns{{
    {"Trigger", 3100, [](Cctv t) { return t.texts.trigger(t.row.int32("T_EventID")); },
     [](Device t) { return t.texts.trigger(t.row.int32("TriggerEventID")); }},
    {"Location", 2500, [](Cctv t) { return t.row.text("T_Address"); },
     [](Device t) { return t.row.text("TriggerAddress"); }},
    {"Action", 1800, [](Cctv t) { return t.texts.cctvAction(t.row.int16("A_type")); },
     [](Device t) { return std::string(t.recorder ? "Trigger Alarm" : ""); }},
    {"Type", 800, [](Cctv) { return std::string("CCTV"); }, [](Device t) { return t.type; }},
    {"Device", 3000, [](Cctv t) { return t.row.text("SwitcherName"); },
     [](Device t) { return t.recorder.value_or(std::string()); }},
    {"TriggerID", 0, [](Cctv t) { return numberText(t.row.int32("TA_ID")); },
     [](Device t) { return numberText(t.row.int32("TriggerID")); }},
    {"TriggerEventID", 0, [](Cctv t) { return numberText(t.row.int32("T_EventID")); },
     [](Device t) { return numberText(t.row.int32("TriggerEventID")); }},
}};

SummaryCells cellsOf(const CctvTrigger& trigger) {
  SummaryCells cells;
  std::ranges::transform(summaryColumns, cells.begin(),
                         [&](const SummaryColumn& column) { return column.ofCctv(trigger); });
  return cells;
}

SummaryCells cellsOf(const DeviceTrigger& trigger) {
  SummaryCells cells;
  std::ranges::transform(summaryColumns, cells.begin(),
                         [&](const SummaryColumn& column) { return column.ofDevice(trigger); });
  return cells;
}

}  // namespace pelorin
