// A small site that answers the editor's statements: three ordinary filter categories and two of
// the controller family, two switchers, two recorders (the second of the vendor without duration).
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "editor/frm_trigger_action.h"
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
class EditorTest : public ::testing::Test, protected EditorSite {
 protected:
  EditorTest() = default;
  ~EditorTest() override { screen.unloadAll(); }

  frmTriggerAction& openEditor(const EditorRequest& request = {});
  frmTriggerAction& editCctv(int id = 5) { return openEditor({id, device_class::cctv}); }
  frmTriggerAction& editDvr(int id = 8) { return openEditor({id, device_class::dvr}); }

  template <class ControlType>
  ControlType& control(const std::string& name) {
    auto* found = dynamic_cast<ControlType*>(editor->find(name));
    if (found == nullptr) throw std::logic_error("no control " + name);
    return *found;
  }
  ComboBox& combo(const std::string& name) { return control<ComboBox>(name); }
  TextBox& textBox(const std::string& name) { return control<TextBox>(name); }
  Button& button(const std::string& name) { return control<Button>(name); }

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

std::vector<std::string> texts(const ComboBox& combo);
// Sub-item 1 of each row.
std::vector<std::string> numbers(const ListView& events);

}  // namespace pelorin::test
