#include "summary/frm_ta_summary.h"

#include <algorithm>
#include <utility>

#include "catalog/trigger_store.h"
#include "common/guard.h"
#include "controls/text_key.h"

namespace pelorin {

namespace {

constexpr Size designClient{11880, 6720};
constexpr Size smallestWindow{7860, 3840};
constexpr int gap = 120;
constexpr int buttonWidth = 1335;
constexpr int buttonHeight = 405;

constexpr int add = 0;
constexpr int edit = 1;

constexpr std::int16_t helpTopic = 217;
constexpr std::int16_t auditTriggerDeleted = 1186;

struct Column {
  const char* header;
  int width;
};
constexpr Column columns[summary_column::count] = {
    {"Trigger", 3100}, {"Location", 2500}, {"Action", 1800},      {"Type", 800},
    {"Device", 3000},  {"TriggerID", 0},   {"TriggerEventID", 0},
};

}  // namespace

frmTASummary::frmTASummary(Module1& module, EventCatalogue& catalogue, ShowEditor showEditor)
    : Form("frmTASummary", "Pelorin", designClient),
      module_(module),
      catalogue_(catalogue),
      showEditor_(std::move(showEditor)),
      MSFlexGrid1("MSFlexGrid1", {}, summary_column::count),
      cmdAdd_("cmdAddEdit(0)", {}, "&Add..."),
      cmdEdit_("cmdAddEdit(1)", {}, "&Edit..."),
      cmdDelete("cmdDelete", {}, "&Delete"),
      cmdHelp("cmdHelp", {}, "&Help"),
      cmdClose("cmdClose", {}, "Close") {
  addControls({&MSFlexGrid1, &cmdAdd_, &cmdEdit_, &cmdDelete, &cmdHelp, &cmdClose});
  setResizable(smallestWindow);
  setDefaultButton(&cmdEdit_);
  setCancelButton(&cmdClose);
  EnableEditButtons(false);
  layOut();
  connectEvents();
}

// The grid takes the space; what changes the list stands left below it, the rest right.
void frmTASummary::layOut() {
  const int width = std::max(client().width, 5 * buttonWidth + 6 * gap);
  const int height = std::max(client().height, 4 * buttonHeight);
  const int top = height - gap - buttonHeight;
  const auto place = [&](Button& button, int left) {
    button.setPlace({left, top, buttonWidth, buttonHeight});
  };
  MSFlexGrid1.setPlace({gap, gap, width - 2 * gap, top - 2 * gap});
  place(cmdAdd_, gap);
  place(cmdEdit_, 2 * gap + buttonWidth);
  place(cmdDelete, 3 * gap + 2 * buttonWidth);
  place(cmdHelp, width - 2 * (gap + buttonWidth));
  place(cmdClose, width - gap - buttonWidth);
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

void frmTASummary::Form_Resize() {
  layOut();
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
    for (int column = 0; column < summary_column::count; ++column) {
      grid.setCell(0, column, columns[column].header);
      grid.setColumnWidth(column, columns[column].width);
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
    while (loading() && rows.next()) {
      SummaryRow row;
      row.eventId = rows.int32("T_EventID");
      row.trigger = texts.trigger(row.eventId);
      row.location = rows.text("T_Address");
      row.action = texts.cctvAction(rows.int16("A_type"));
      row.type = "CCTV";
      row.device = rows.text("SwitcherName");
      row.triggerId = rows.int32("TA_ID");
      addRow(grid, row);
    }
  });
}

void frmTASummary::LoadDeviceSummaryData(Grid& grid, LoadTexts& texts) {
  if (!isOpen()) return;
  RecordSet rows = module_.DBConnection()->open("exec TA_FetchSummary");
  rows.drain();
  while (loading() && rows.next()) {
    SummaryRow row;
    row.type = rows.text("Classname");
    if (row.type == "DVR / NVR") {
      row.action = "Trigger Alarm";
      row.device = GetDVRActionDeviceName(rows.int32("ActionID"));
    }
    row.eventId = rows.int32("TriggerEventID");
    row.trigger = texts.trigger(row.eventId);
    row.location = rows.text("TriggerAddress");
    row.triggerId = rows.int32("TriggerID");
    addRow(grid, row);
  }
}

// A report shown on the way lets the host run; it may have closed the window meanwhile.
void frmTASummary::addRow(Grid& grid, const SummaryRow& row) {
  if (isOpen()) addSummaryRow(grid, row);
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
