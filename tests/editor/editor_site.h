// A small site that answers the editor's statements: three ordinary filter categories and two of
// the controller family, two switchers, two recorders (the second of the vendor without duration).
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "editor/frm_trigger_action.h"
#include "tests/fakes/lookups.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {

struct EditorSite : Surroundings {
  EventCatalogue catalogue{module};

  EditorSite();
  void answerEvents();
  void answerSwitchers();
  void answerRecorders();
  // A stored action of each kind.
  void answerCctvTrigger(int id, std::vector<Value> row);
  void answerDvrTrigger(int id, int eventId, int actionId, int deviceClass);
  void answerDvrAction(int id, std::vector<Value> row);
};

// The form over that site; closed at the end.
class EditorTest : public ::testing::Test, protected EditorSite, protected OneForm {
 protected:
  EditorTest() = default;
  ~EditorTest() override { screen.unloadAll(); }

  frmTriggerAction& openEditor(const EditorRequest& request = {});
  frmTriggerAction& editCctv(int id = 5) { return openEditor({id, device_class::cctv}); }
  frmTriggerAction& editDvr(int id = 8) { return openEditor({id, device_class::dvr}); }

  Form& tested() override { return *editor; }
  void addLocations(int count);
  void tickFilter(int row);
  void checkEvents(std::initializer_list<int> rows);
  void chooseClass(std::int32_t deviceClass);
  // Statements that write and audit calls, in order, since the journal was cleared.
  std::vector<std::string> writes() const;

  std::unique_ptr<frmTriggerAction> editor;
  int reloads = 0;
  bool reloadFails = false;
  std::vector<std::string> pickerModes;
};

}  // namespace pelorin::test
