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
  void Form_Resize() override;
  bool Form_KeyDown(int keyCode) override;

 private:
  void layOut();
  void connectEvents();
  bool showInnermost();
  bool loading() const;

  void InitSummaryGridHeader(Grid& grid);
  void LoadSummaryData(Grid& grid);
  void LoadCCTVSummaryData(Grid& grid, LoadTexts& texts);
  void LoadDeviceSummaryData(Grid& grid, LoadTexts& texts);
  void addRow(Grid& grid, const SummaryRow& row);
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

  Grid MSFlexGrid1;
  Button cmdAdd_;
  Button cmdEdit_;
  Button cmdDelete;
  Button cmdHelp;
  Button cmdClose;
};

}  // namespace pelorin
