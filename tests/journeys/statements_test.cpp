// The table of statements is a copy of what the component sends: everything that an operator can
// do is done once, and what was sent is compared with the table, both ways.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/ta_manager_members.h"
#include "location/controller_folders.h"
#include "site/statement_call.h"
#include "tests/component/fake_entrance.h"
#include "tests/journeys/editor_journey.h"
#include "tests/journeys/sent_statements.h"

namespace pelorin::test {
namespace {

using ::testing::IsEmpty;

class StatementTableJourney : public ::testing::Test, protected EditorJourney {
 protected:
  StatementTableJourney() {
    services->enableCustomize = true;
    component.module().setDBConnection(sent);
  }

  void addWithEveryOption();
  void editEveryTrigger();
  void pickSingleLocation();
  void deleteEveryTrigger();
  void customizePicker() const;
  void callWhatNoWindowReaches();
  // Chooses every row of the combo in turn, then the first one again.
  void chooseEach(const std::string& combo, const std::function<void()>& then) const;
  void tickEveryFilter() const;

  bool isKnown(const std::string& statement) const;
  bool wasSent(const site::SiteStatement& statement) const;

  std::shared_ptr<RecordedConnection> sent = std::make_shared<RecordedConnection>(*direct);
};

void StatementTableJourney::chooseEach(const std::string& combo,
                                       const std::function<void()>& then) const {
  auto& rows = inEditor<ComboBox>(combo);
  for (int row = rows.listCount() - 1; row >= 0; --row) {
    rows.userSelect(row);
    then();
  }
}

void StatementTableJourney::tickEveryFilter() const {
  auto& filters = inEditor<ListBox>("lstEventFilters");
  for (int row = 0; row < filters.listCount(); ++row) filters.userToggle(row);
}

void StatementTableJourney::addWithEveryOption() {
  add();
  tickEveryFilter();
  for (const int event : {1, 5001, 10001, 80004}) checkEvent(event);
  pickLocations({"001.01.007.D01"});
  showTab(1);
  chooseEach("cmbCCTVSwitchers", [this] {
    chooseEach("cmbCCTVCameras", [] {});
    chooseEach("cmbCCTVActions", [] {});
  });
  choose("cmbCCTVActions", "Raise alarm");
  inEditor<CheckBox>("chkCCTVAutoRTNTriggers").setChecked(true);
  press("cmdApply");
  choose("cmbActionDeviceClass", "DVR / NVR");
  chooseEach("cmbDVRUnit", [this] {
    chooseEach("cmbDVRCamera", [] {});
    chooseEach("cmbRecordStandard", [] {});
  });
  press("cmdOK");
  EXPECT_FALSE(isOpen("frmTriggerAction"));
}

void StatementTableJourney::editEveryTrigger() {
  Grid& grid = on<Grid>("frmTASummary", "MSFlexGrid1");
  for (int row = 1; row < grid.rows(); ++row) {
    grid.userSelectRow(row);
    press("frmTASummary", "cmdAddEdit(1)");
    press("cmdApply");
    tickEveryFilter();
    press("cmdCancel");
    screen.collect();
  }
}

void StatementTableJourney::pickSingleLocation() {
  edit("CCTV", 1);
  press("cmdSingleLocation");
  form("FLocation").unload();
  press("cmdCancel");
  screen.collect();
}

void StatementTableJourney::deleteEveryTrigger() {
  Grid& grid = on<Grid>("frmTASummary", "MSFlexGrid1");
  while (grid.rows() > 1) {
    const int before = grid.rows();
    grid.userSelectRow(1);
    press("frmTASummary", "cmdDelete");
    ASSERT_EQ(grid.rows(), before - 1);
  }
}

void StatementTableJourney::customizePicker() const {
  add();
  press("cmdAddLocation");
  form("FLocation").contextMenu().userPick(0);
  press("FLocation", "cmdMain(0)");
  form("FLocation").contextMenu().userPick(1);
  form("FLocation").unload();
  press("cmdCancel");
}

// A host asks for its number of the add-in; the cameras of a switcher are a folder that no
// controller has.
void StatementTableJourney::callWhatNoWindowReaches() {
  FakeEntrance entrance(component);
  EXPECT_GT(TAManagerMembers(entrance).GetAddInID("MorvatPelorin"), 0);
  TreeView tree(noParent, "tvTree", {});
  LocationNodes nodes(component.module(), tree, [] { return true; });
  ControllerFolders(nodes).AddFolderInfo(tree.add(nullptr, {"XD1", "Cameras"}));
}

bool StatementTableJourney::isKnown(const std::string& statement) const {
  const auto& known = site::siteStatements();
  return std::any_of(known.begin(), known.end(), [&](const site::SiteStatement& entry) {
    return !entry.command && isSentAs(entry, statement);
  });
}

bool StatementTableJourney::wasSent(const site::SiteStatement& statement) const {
  if (statement.command) return sent->commands.contains(commandText(commandCall(statement)));
  return std::any_of(sent->statements.begin(), sent->statements.end(),
                     [&](const std::string& text) { return isSentAs(statement, text); });
}

TEST_F(StatementTableJourney, TheTableHoldsWhatIsSentAndNothingElse) {
  openSummary();
  addWithEveryOption();
  editEveryTrigger();
  pickSingleLocation();
  customizePicker();
  deleteEveryTrigger();
  callWhatNoWindowReaches();

  std::set<std::string> unknown = sent->commands;
  std::vector<std::string> neverSent;
  for (const site::SiteStatement& statement : site::siteStatements()) {
    if (statement.command) unknown.erase(commandText(commandCall(statement)));
    if (!wasSent(statement)) neverSent.push_back(statement.name);
  }
  for (const std::string& statement : sent->statements) {
    if (!isKnown(statement)) unknown.insert(statement);
  }
  EXPECT_THAT(unknown, IsEmpty()) << "sent, and not in the table";
  EXPECT_THAT(neverSent, IsEmpty()) << "in the table, and sent by nothing";
}

}  // namespace
}  // namespace pelorin::test
