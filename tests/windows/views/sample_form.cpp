#include "tests/windows/views/sample_form.h"

#include <algorithm>

namespace pelorin::test {

SampleForm::SampleForm() : Form("frmSample", "Sample", {9240, 6150}) {
  lblStatus.setUseMnemonic(false);
  setDefaultButton(&cmdOK);
  setCancelButton(&cmdCancel);
  fillLists();
  listen();
}

void SampleForm::fillLists() {
  for (int i = 0; i < 5; ++i) cmbKind.addItem("Kind " + std::to_string(i), i + 10);
  for (int i = 0; i < 8; ++i) lstFilters.addItem("Filter " + std::to_string(i), i);
  for (int i = 1; i <= 30; ++i) {
    ListItem item;
    item.text = "Type " + std::to_string(i);
    item.subItems = {"000" + std::to_string(i), "Door forced"};
    lvwEvents.add(0, std::move(item));
  }
  tvTree.add(nullptr, {"root", "Site", "", 1});
  for (int i = 0; i < 3; ++i) {
    const std::string folder = "folder" + std::to_string(i);
    tvTree.add(tvTree.find("root"), {folder, "Folder " + std::to_string(i), "", 2});
    for (int j = 0; j < 4; ++j) {
      tvTree.add(tvTree.find(folder),
                 {folder + "." + std::to_string(j), "Door " + std::to_string(j), "0001", 3});
    }
  }
  tvTree.expand(*tvTree.find("root"));
  const std::vector<std::pair<std::string, int>> columns{
      {"Trigger", 2000}, {"Location", 1500}, {"Type", 800}, {"Id", 0}};
  for (int column = 0; column < 4; ++column) {
    grid.setCell(0, column, columns[static_cast<std::size_t>(column)].first);
    grid.setColumnWidth(column, columns[static_cast<std::size_t>(column)].second);
  }
  grid.setRows(1);
  for (int i = 1; i <= 40; ++i) {
    grid.addRow({"Trigger " + std::to_string(i), "000" + std::to_string(i), "CCTV", "77"});
  }
}

void SampleForm::listen() {
  const auto note = [this](const std::string& event) {
    return [this, event] { events.push_back(event); };
  };
  cmdOK.onClick = note("click cmdOK");
  cmdCancel.onClick = note("click cmdCancel");
  cmdHelp.onClick = note("click cmdHelp");
  cmdInside.onClick = note("click cmdInside");
  chkActive.onClick = note("click chkActive");
  cmbKind.onClick = note("click cmbKind");
  lstFilters.onClick = note("click lstFilters");
  txtName.onValidate = note("validate txtName");
  txtInside.onValidate = note("validate txtInside");
  grid.onDoubleClick = note("double-click grid");
  tvTree.onNodeClick = [this](const TreeNode& node) { events.push_back("node " + node.key); };
  tvTree.onDoubleClick = note("double-click tvTree");
  lvwEvents.onSelect = [this] {
    events.push_back("select " + std::to_string(lvwEvents.selectedIndex()));
  };
  lvwEvents.onCheck = [this](int index) { events.push_back("check " + std::to_string(index)); };
}

int SampleForm::count(const std::string& event) const {
  return static_cast<int>(std::count(events.begin(), events.end(), event));
}

}  // namespace pelorin::test
