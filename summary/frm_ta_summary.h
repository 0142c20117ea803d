// The summary: a read-only grid of every trigger action, with buttons to add, edit and delete.
#pragma once

#include <cstdint>
#include <string>

#include "catalog/event_catalogue.h"
#include "common/form_links.h"
#include "controls/grid.h"
#include "summary/load_texts.h"
#include "summary/summary_grid.h"

namespace pelorin {

class frmTASummary : public Form {
 public:
  frmTASummary(Module1& module, EventCatalogue& catalogue, ShowEditor showEditor);

  // Reads both kinds of trigger actions again; the trigger that was current stays so if it is still
  // there, and the place in the list is kept.
  void ReloadSummary();

  void Form_Load() override;
  bool Form_KeyDown(int keyCode) override;

 private:
  void connectEvents();
  bool showInnermost();
  bool loading() const;

  void InitSummaryGridHeader(Grid& grid);
  void LoadSummaryData(Grid& grid);
  void LoadCCTVSummaryData(Grid& grid, LoadTexts& texts);
  void LoadDeviceSummaryData(Grid& grid, LoadTexts& texts);
  void addRow(Grid& grid, const SummaryCells& cells);
  void RemoveAllRowsFromGrid(Grid& grid);
  std::string GetDVRActionDeviceName(std::int32_t actionId);
  void EnableEditButtons(bool dataRowsExist);

  void cmdAddEdit_Click(int index);
  void cmdDelete_Click();
  void cmdHelp_Click();
  void cmdClose_Click();
  void deleteCurrentTrigger();

  Module1& module_;
  EventCatalogue& catalogue_;
  ShowEditor showEditor_;

  // The grid takes the space; what changes the list stands left below it, the rest right.
  static constexpr Anchor everySide = Anchor::Left | Anchor::Top | Anchor::Right | Anchor::Bottom;
  static constexpr Anchor bottomLeft = Anchor::Bottom | Anchor::Left;
  static constexpr Anchor bottomRight = Anchor::Bottom | Anchor::Right;
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {120, 120, 11640, 5955, everySide}, summary_column::count};
  Button cmdAdd_{*this, "cmdAddEdit(0)", {120, 6195, 1335, 405, bottomLeft}, "&Add..."};
  Button cmdEdit_{*this, "cmdAddEdit(1)", {1575, 6195, 1335, 405, bottomLeft}, "&Edit..."};
  Button cmdDelete{*this, "cmdDelete", {3030, 6195, 1335, 405, bottomLeft}, "&Delete"};
  Button cmdHelp{*this, "cmdHelp", {8970, 6195, 1335, 405, bottomRight}, "&Help"};
  Button cmdClose{*this, "cmdClose", {10425, 6195, 1335, 405, bottomRight}, "Close"};
};

}  // namespace pelorin
