#include "tests/journeys/editor_journey.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "site/schema.h"
#include "summary/summary_grid.h"

namespace pelorin::test {

namespace {

std::string tableQuery(const site::Table& table) {
  std::string sql = "select * from " + table.name;
  const char* separator = " order by ";
  for (const std::string& column : table.key) {
    sql += separator + ('[' + column + ']');
    separator = ", ";
  }
  return sql;
}

std::vector<std::string> rowsOf(Connection& connection, const std::string& sql) {
  std::vector<std::string> found;
  RecordSet rows = connection.open(sql);
  while (rows.next()) {
    std::string row;
    for (int column = 0; column < static_cast<int>(rows.columns().size()); ++column) {
      if (column > 0) row += " | ";
      row += isNull(rows.value(column)) ? "null" : rows.text(column);
    }
    found.push_back(row);
  }
  return found;
}

}  // namespace

EditorJourney::EditorJourney() : OpenForms(screen) {
  services->newerHardware = true;
  services->operatorId = 1;
  services->workStationId = 1;
  services->texts = {{1677, "Call camera"}, {1675, "Raise alarm"}, {1821, "Acknowledge alarm"},
                     {2161, "<No preset>"}, {3553, "<No group>"},  {2835, "Added"}};
  environment.settings["C:\\Component\\CCTV\\PERIMETER.INI|UNSUPPORTED|Action3"] = "1";
  database->onSent = [this](std::string_view statement) {
    journal.add("sql: " + std::string(statement));
    sent_.push_back({std::string(statement), database->acts()});
  };
  component.module().setNTConnection(services);
  component.module().setDBConnection(database);
}

EditorJourney::~EditorJourney() {
  database->onSent = nullptr;
}

frmTriggerAction& EditorJourney::editor() const {
  return dynamic_cast<frmTriggerAction&>(form("frmTriggerAction"));
}

void EditorJourney::selectTrigger(const std::string& deviceClass, int id) const {
  Grid& grid = on<Grid>("frmTASummary", "MSFlexGrid1");
  const int row = rowOf(grid, {deviceClass, id});
  if (row == 0) throw std::logic_error("the summary has no such trigger");
  grid.userSelectRow(row);
}

void EditorJourney::edit(const std::string& deviceClass, int id) const {
  selectTrigger(deviceClass, id);
  press("frmTASummary", "cmdAddEdit(1)");
}

void EditorJourney::pickLocations(const std::vector<std::string>& tags) const {
  press("cmdAddLocation");
  auto& tree = on<TreeView>("FLocation", "tvTree");
  for (const std::string& tag : tags) {
    TreeNode* node = nodeTagged(tree, tag);
    if (node == nullptr) continue;
    tree.userSelect(*node);
    tree.userDoubleClick();
  }
  form("FLocation").unload();
}

SiteRows EditorJourney::rows() const {
  SiteRows found;
  for (const site::Table& table : site::siteSchema().tables()) {
    found[table.name] = rowsOf(*direct, tableQuery(table));
  }
  return found;
}

std::vector<std::string> EditorJourney::statementsAndAudits() const {
  std::vector<std::string> found;
  for (const std::string& line : journal.lines()) {
    if (line.starts_with("sql: ") || line.starts_with("host: LogEvent")) found.push_back(line);
  }
  return found;
}

int EditorJourney::actsBeforeReload() const {
  const auto reload = std::find_if(sent_.rbegin(), sent_.rend(), [](const Sent& sent) {
    return sent.statement.starts_with("select CCTV_TriggerAction.*");
  });
  return reload == sent_.rend() ? database->acts() : reload->act - 1;
}

bool countsReports(const BoxRequest& box) {
  return box.text.find(" more errors were written to ") != std::string::npos;
}

SiteRows added(const SiteRows& before, const SiteRows& after) {
  SiteRows found;
  for (const auto& [table, rows] : after) {
    const std::vector<std::string>& old = before.at(table);
    for (const std::string& row : rows) {
      if (std::find(old.begin(), old.end(), row) == old.end()) found[table].push_back(row);
    }
  }
  return found;
}

}  // namespace pelorin::test
