// A form with one control of every kind, in the manner of the real ones.
#pragma once

#include <string>
#include <vector>

#include "controls/form.h"
#include "controls/grid.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"
#include "controls/tab_control.h"
#include "controls/tree_view.h"

namespace pelorin::test {

class SampleForm : public Form {
 public:
  SampleForm();
  ~SampleForm() override { unload(); }

  // What happened, in order, such as "click cmdOK".
  std::vector<std::string> events;

  TabControl tabs{"tabs", {120, 120, 9000, 5400}, {"&First", "&Second"}};
  Label lblName{"lblName", {150, 240, 900, 195}, "&Name:"};
  TextBox txtName{"txtName", {1200, 200, 2400, 315}};
  Label lblKind{"lblKind", {150, 700, 900, 195}, "&Kind:"};
  ComboBox cmbKind{"cmbKind", {1200, 650, 2400, 315}};
  CheckBox chkActive{"chkActive", {1200, 1100, 2400, 255}, "A&ctive"};
  ListBox lstFilters{"lstFilters", {150, 1500, 3450, 1500}};
  ListView lvwEvents{"lvwEvents",
                     {3800, 200, 5000, 2800},
                     {{"Type", 1200}, {"Event No.", 1200}, {"Description", 2000}},
                     true};
  Frame fraGroup{"fraGroup", {150, 3100, 4300, 1700}, "Group"};
  Label lblInside{"lblInside", {150, 350, 1000, 195}, "Inside:"};
  TextBox txtInside{"txtInside", {1200, 300, 1500, 315}};
  Button cmdInside{"cmdInside", {2800, 280, 1300, 375}, "&Inside"};
  TreeView tvTree{"tvTree", {150, 300, 4000, 4300}};
  Grid grid{"grid", {4300, 300, 4500, 4300}, 4};
  Label lblStatus{"lblStatus", {150, 5700, 3000, 195}, "Salt & pepper"};
  Button cmdOK{"cmdOK", {5500, 5650, 1100, 375}, "OK"};
  Button cmdCancel{"cmdCancel", {6700, 5650, 1100, 375}, "Cancel"};
  Button cmdHelp{"cmdHelp", {7900, 5650, 1100, 375}, "&Help"};

  void Form_Load() override { events.push_back("load"); }
  void Form_Activate() override { events.push_back("activate"); }
  void Form_Unload() override { events.push_back("unload"); }
  void Form_Resize() override { events.push_back("resize"); }

  int count(const std::string& event) const;

 private:
  void fillLists();
  void listen();
};

}  // namespace pelorin::test
