// What an operator finds on the screen and does there: the one set of look-ups of all native tests.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "controls/form.h"
#include "controls/grid.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"
#include "controls/tree_view.h"
#include "tests/fakes/recording_screen.h"

namespace pelorin::test {

// An error of the test when there is none of that name and type.
template <class ControlType>
ControlType& controlOf(const Form& form, const std::string& name) {
  auto* found = dynamic_cast<ControlType*>(form.find(name));
  if (found == nullptr) throw std::logic_error("no control " + name);
  return *found;
}
TreeNode& nodeOf(const TreeView& tree, const std::string& key);
// The first node with this tag, or null.
TreeNode* nodeTagged(const TreeView& tree, const std::string& tag);

// What is listed, from the first row to the last; of a list view each row's sub-item 1.
std::vector<std::string> texts(const ComboBox& combo);
std::vector<std::string> texts(const ListBox& list);
std::vector<std::string> numbers(const ListView& events);
// The cells of a row, each ended by "|"; and of all rows below the header.
std::string rowText(const Grid& grid, int row);
std::vector<std::string> rowTexts(const Grid& grid);

// The operator's choice among rows. A row that is not there is not chosen.
void choose(ComboBox& combo, const std::string& text);
void chooseData(ComboBox& combo, std::int32_t itemData);
void tick(ListBox& list, const std::string& text);
void check(ListView& events, const std::string& number);

// For tests of one form, which their fixture names.
class OneForm {
 public:
  virtual ~OneForm() = default;

 protected:
  virtual Form& tested() = 0;

  template <class ControlType>
  ControlType& control(const std::string& name) {
    return controlOf<ControlType>(tested(), name);
  }
  ComboBox& combo(const std::string& name) { return control<ComboBox>(name); }
  TextBox& textBox(const std::string& name) { return control<TextBox>(name); }
  Button& button(const std::string& name) { return control<Button>(name); }
};

// For tests of several forms, which they name as the screen knows them.
class OpenForms {
 public:
  // The screen may be made later.
  explicit OpenForms(const RecordingScreen& screen) : shown_(screen) {}

  Form& form(const std::string& name) const;
  bool isOpen(const std::string& name) const;
  template <class ControlType>
  ControlType& on(const std::string& formName, const std::string& name) const {
    return controlOf<ControlType>(form(formName), name);
  }
  void press(const std::string& formName, const std::string& button) const;

 private:
  const RecordingScreen& shown_;
};

}  // namespace pelorin::test
