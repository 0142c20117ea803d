// The whole component over the demonstration site in memory, driven as an operator drives it. Each
// act of the connection (a statement or a fetch) can be made to fail.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "component/component.h"
#include "site/site_database.h"
#include "tests/fakes/fake_environment.h"
#include "tests/fakes/faulty_connection.h"
#include "tests/fakes/lookups.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/recording_services.h"
#include "tests/site/fresh_site.h"

namespace pelorin::test {

// Every row of every table as one text, in the order of its key.
using SiteRows = std::map<std::string, std::vector<std::string>>;

class EditorJourney : public OpenForms {
 public:
  EditorJourney();
  ~EditorJourney();
  EditorJourney(const EditorJourney&) = delete;
  EditorJourney& operator=(const EditorJourney&) = delete;

  frmTriggerAction& editor() const;
  template <class ControlType>
  ControlType& inEditor(const std::string& name) const {
    return on<ControlType>("frmTriggerAction", name);
  }
  using OpenForms::press;
  void press(const std::string& button) const { press("frmTriggerAction", button); }

  // The summary, and from there the editor.
  void openSummary() { component.RaiseForm(0x77); }
  void add() const { press("frmTASummary", "cmdAddEdit(0)"); }
  void selectTrigger(const std::string& deviceClass, int id) const;
  void edit(const std::string& deviceClass, int id) const;

  // Acts in the editor. A row that is not there is not chosen.
  void tickFilter(const std::string& text) const {
    tick(inEditor<ListBox>("lstEventFilters"), text);
  }
  void checkEvent(int eventId) const {
    check(inEditor<ListView>("lvwEvents"), eventNumberText(eventId));
  }
  // Opens the picker, double-clicks the nodes with these tags, and closes it.
  void pickLocations(const std::vector<std::string>& tags) const;
  void choose(const std::string& combo, const std::string& text) const {
    test::choose(inEditor<ComboBox>(combo), text);
  }
  void showTab(int tab) const { inEditor<TabControl>("SSTab1").setTab(tab); }

  SiteRows rows() const;
  std::vector<std::string> statementsAndAudits() const;
  // How many acts of the connection came before the summary was read anew.
  int actsBeforeReload() const;

  Journal journal;
  RecordingScreen screen{journal};
  FakeEnvironment environment;
  std::shared_ptr<RecordingServices> services = std::make_shared<RecordingServices>(journal);
  SiteDatabase site = freshDemonstration();
  std::shared_ptr<Connection> direct = site.connect();
  std::shared_ptr<FaultyConnection> database = std::make_shared<FaultyConnection>(*direct);
  Component component{screen, environment};

 private:
  struct Sent {
    std::string statement;
    int act;
  };
  std::vector<Sent> sent_;
};

// Whether the box only tells how many reports the log has besides.
bool countsReports(const BoxRequest& box);

// Rows of `after` that `before` does not have, by table and in order; empty tables left out.
SiteRows added(const SiteRows& before, const SiteRows& after);

}  // namespace pelorin::test
