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

  TabControl tabs{*this, "tabs", {120, 120, 9000, 5400}, {"&First", "&Second"}};
  // Places on a page are relative to the tab control, whose captions take the first row.
  Label lblName{tabs.page(0), "lblName", {150, 640, 900, 195}, "&Name:"};
  TextBox txtName{tabs.page(0), "txtName", {1200, 600, 2400, 315}};
  Label lblKind{tabs.page(0), "lblKind", {150, 1100, 900, 195}, "&Kind:"};
  ComboBox cmbKind{tabs.page(0), "cmbKind", {1200, 1050, 2400, 315}};
  CheckBox chkActive{tabs.page(0), "chkActive", {1200, 1500, 2400, 255}, "A&ctive"};
  ListBox lstFilters{tabs.page(0), "lstFilters", {150, 1900, 3450, 1500}};
  ListView lvwEvents{tabs.page(0),
                     "lvwEvents",
                     {3800, 600, 5000, 2800},
                     {{"Type", 1200}, {"Event No.", 1200}, {"Description", 2000}},
                     true};
  Frame fraGroup{tabs.page(0), "fraGroup", {150, 3500, 4300, 1700}, "Group"};
  Label lblInside{fraGroup, "lblInside", {150, 350, 1000, 195}, "Inside:"};
  TextBox txtInside{fraGroup, "txtInside", {1200, 300, 1500, 315}};
  Button cmdInside{fraGroup, "cmdInside", {2800, 280, 1300, 375}, "&Inside"};
  TreeView tvTree{tabs.page(1), "tvTree", {150, 700, 4000, 4300}};
  Grid grid{tabs.page(1), "grid", {4300, 700, 4500, 4300}, 4};
  Label lblStatus{*this, "lblStatus", {150, 5700, 3000, 195}, "Salt & pepper"};
  Button cmdOK{*this, "cmdOK", {5500, 5650, 1100, 375}, "OK"};
  Button cmdCancel{*this, "cmdCancel", {6700, 5650, 1100, 375}, "Cancel"};
  Button cmdHelp{*this, "cmdHelp", {7900, 5650, 1100, 375}, "&Help"};

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
