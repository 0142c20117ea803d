#include "summary/frm_ta_summary.h"

#include <utility>

#include "base/text_key.h"
#include "catalog/trigger_store.h"
#include "common/guard.h"

namespace pelorin {

namespace {

constexpr Size designClient{11880, 6720};
constexpr Size smallestWindow{7860, 3840};
// The buttons stand apart down to this client area.
constexpr Size smallestClient{7395, 1620};

constexpr int add = 0;
constexpr int edit = 1;

constexpr std::int16_t helpTopic = 217;
constexpr std::int16_t auditTriggerDeleted = 1186;

}  // namespace

frmTASummary::frmTASummary(Module1& module, EventCatalogue& catalogue, ShowEditor showEditor)
    : Form("frmTASummary", "Pelorin", designClient),
      module_(module),
      catalogue_(catalogue),
      showEditor_(std::move(showEditor)) {
  setResizable(smallestWindow, smallestClient);
  setDefaultButton(&cmdEdit_);
  setCancelButton(&cmdClose);
  EnableEditButtons(false);
  connectEvents();
}

void frmTASummary::connectEvents() {
  MSFlexGrid1.onDoubleClick = [this] { cmdAddEdit_Click(edit); };
  cmdAdd_.onClick = [this] { cmdAddEdit_Click(add); };
  cmdEdit_.onClick = [this] { cmdAddEdit_Click(edit); };
  cmdDelete.onClick = [this] { cmdDelete_Click(); };
  cmdHelp.onClick = [this] { cmdHelp_Click(); };
  cmdClose.onClick = [this] { cmdClose_Click(); };
}

void frmTASummary::Form_Load() {
  guarded(module_, "frmTASummary.Form_Load", [this] {
    const HourglassPointer hourglass(module_.screen());
    catalogue_.InitEventTypeInfoArray();
    if (!isOpen()) return;
    InitSummaryGridHeader(MSFlexGrid1);
    LoadSummaryData(MSFlexGrid1);
    if (isDataRow(MSFlexGrid1, 1)) MSFlexGrid1.setRow(1);
  });
}

// Enter in the grid edits as the default button does, but the focus stays, so that the arrow keys
// still move through the list when the editor is closed.
bool frmTASummary::Form_KeyDown(int keyCode) {
  if (keyCode == key_code::escape) return showInnermost();
  if (keyCode != key_code::enter || focused() != &MSFlexGrid1) return false;
  cmdEdit_.userClick();
  return true;
}

// Escape must not throw away what is being typed in a window that closes with this one.
bool frmTASummary::showInnermost() {
  Form* innermost = isOpen() ? screen()->innermostOwnedBy(*this) : nullptr;
  if (innermost != nullptr) screen()->show(*innermost);
  return innermost != nullptr;
}

void frmTASummary::ReloadSummary() {
  if (!isOpen()) return;
  guarded(module_, "frmTASummary.ReloadSummary", [this] {
    const HourglassPointer hourglass(module_.screen());
    const std::optional<SummaryKey> current = currentKey(MSFlexGrid1);
    const int place = MSFlexGrid1.row();
    const int caret = MSFlexGrid1.caretRow();
    const int top = MSFlexGrid1.topRow();
    LoadSummaryData(MSFlexGrid1);
    const int row = current ? rowOf(MSFlexGrid1, *current, place) : 0;
    if (row > 0) {
      MSFlexGrid1.setRow(row);
    } else {
      leaveCaretAt(MSFlexGrid1, caret);
    }
    MSFlexGrid1.setTopRow(top);
  });
}

void frmTASummary::InitSummaryGridHeader(Grid& grid) {
  guarded(module_, "frmTASummary.InitSummaryGridHeader", [&grid] {
    int index = 0;
    for (const SummaryColumn& column : summaryColumns) {
      grid.setCell(0, index, column.header);
      grid.setColumnWidth(index, column.width);
      ++index;
    }
    grid.setRows(1);
  });
}

void frmTASummary::LoadSummaryData(Grid& grid) {
  guarded(module_, "frmTASummary.LoadSummaryData", [&] {
    RemoveAllRowsFromGrid(grid);
    LoadTexts texts(module_, catalogue_);
    LoadCCTVSummaryData(grid, texts);
    LoadDeviceSummaryData(grid, texts);
  });
  EnableEditButtons(grid.rows() >= 2);
}

// A report's box lets the host run, which may close the window; without a connection no further row
// could be told what belongs into it.
bool frmTASummary::loading() const {
  return isOpen() && !module_.connectionLost();
}

void frmTASummary::LoadCCTVSummaryData(Grid& grid, LoadTexts& texts) {
  guarded(module_, "frmTASummary.LoadCCTVSummaryData", [&] {
    RecordSet rows = module_.DBConnection()->open(
        "select CCTV_TriggerAction.*, CCTV_Switchers.[name] as SwitcherName from "
        "CCTV_TriggerAction "
        " inner join CCTV_Switchers on CCTV_Switchers.SwitcherId = CCTV_TriggerAction.SwitcherId "
        "order by t_Address, T_EventID");
    rows.drain();
    while (loading() && rows.next()) addRow(grid, cellsOf(CctvTrigger{rows, texts}));
  });
}

void frmTASummary::LoadDeviceSummaryData(Grid& grid, LoadTexts& texts) {
  if (!isOpen()) return;
  RecordSet rows = module_.DBConnection()->open("exec TA_FetchSummary");
  rows.drain();
  while (loading() && rows.next()) {
    DeviceTrigger trigger{rows, texts, rows.text("Classname"), {}};
    if (trigger.type == "DVR / NVR") {
      trigger.recorder = GetDVRActionDeviceName(rows.int32("ActionID"));
    }
    addRow(grid, cellsOf(trigger));
  }
}

// A report shown on the way lets the host run; it may have closed the window meanwhile.
void frmTASummary::addRow(Grid& grid, const SummaryCells& cells) {
  if (isOpen()) addSummaryRow(grid, cells);
}

void frmTASummary::RemoveAllRowsFromGrid(Grid& grid) {
  guarded(module_, "frmTASummary.RemoveAllRowsFromGrid", [&grid] { removeAllSummaryRows(grid); });
}

std::string frmTASummary::GetDVRActionDeviceName(std::int32_t actionId) {
  return guardedOr(module_, "frmTASummary.GetDVRActionDeviceName", std::string(), [&] {
    RecordSet rows =
        module_.DBConnection()->open("exec TA_FetchDVRNameFromAction " + numberText(actionId));
    return rows.next() ? rows.text("DVRName") : std::string();
  });
}

void frmTASummary::EnableEditButtons(bool dataRowsExist) {
  cmdEdit_.setEnabled(dataRowsExist);
  cmdDelete.setEnabled(dataRowsExist);
}

void frmTASummary::cmdAddEdit_Click(int index) {
  guarded(module_, "frmTASummary.cmdAddEdit_Click", [&] {
    const HourglassPointer hourglass(module_.screen());
    EditorRequest request;
    if (index == edit) {
      const std::optional<SummaryKey> current = currentKey(MSFlexGrid1);
      if (!current) return;
      request.m_TriggerID = current->triggerId;
      request.m_ActionDeviceClass = DeviceClassIdFromName(current->type);
    }
    showEditor_(request, hwnd());
  });
}

void frmTASummary::cmdDelete_Click() {
  if (!currentKey(MSFlexGrid1)) return;
  guarded(module_, "frmTASummary.cmdDelete_Click", [this] { deleteCurrentTrigger(); });
  EnableEditButtons(MSFlexGrid1.rows() > 1);
}

void frmTASummary::deleteCurrentTrigger() {
  const HourglassPointer hourglass(module_.screen());
  const int place = MSFlexGrid1.row();
  const SummaryKey key = keyOf(MSFlexGrid1, place);
  const std::string eventId = MSFlexGrid1.cell(place, summary_column::eventId);
  const bool deleted = equalNoCase(key.type, "CCTV")
                           ? DeleteCCTVTriggerAction(module_, key.triggerId)
                           : DeleteTriggerAction(module_, key.triggerId);
  if (!deleted) throw AlreadyReported();
  const int row = rowOf(MSFlexGrid1, key, place);
  if (row > 0) {
    removeSummaryRow(MSFlexGrid1, row);
    leaveCaretAt(MSFlexGrid1, row);
  }
  module_.NTConnection()->LogEvent("Delete", "TriggerAction", key.triggerId,
                                   "Trigger Event " + eventId, auditTriggerDeleted);
}

void frmTASummary::cmdHelp_Click() {
  guarded(module_, "frmTASummary.cmdHelp_Click",
          [this] { module_.NTConnection()->ShowHelp(helpTopic); });
}

void frmTASummary::cmdClose_Click() {
  guarded(module_, "frmTASummary.cmdClose_Click", [this] { unload(); });
}

}  // namespace pelorin
