// The fields of an action panel. Each panel has one table of them, and everything that goes field
// by field goes through it: reading and showing the stored action, judging whether it is shown
// whole, reading what the operator set, and the order of a statement's arguments.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/item_lists.h"
#include "controls/simple_controls.h"
#include "database/connection.h"
#include "editor/panel/arguments.h"

namespace pelorin {

// A drop-down list that knows whether its rows were read to the end when it was last filled.
class FieldCombo : public ComboBox {
 public:
  using ComboBox::ComboBox;
  bool listRead = true;
};

// How a control takes part in its panel's table.
struct FieldControl {
  // The column as the value that is shown.
  std::function<Value(const RecordSet& row, const char* column)> fromRow;
  std::function<void(const Value& stored)> show;
  // Whether saving would keep the stored value, or what the control shows in its stead is right.
  std::function<bool(const Value& stored)> standsFor;
  // What the operator set, as it is written. Error 380, naming the field, when a needed choice is
  // missing; error 6 when a value is too large for the database.
  std::function<Value()> read;
};

// When a choice without a selected row is an error; else it is saved as 0.
enum class Needed { Always, WhileVisible, Never };

// The item data of the selected row. A list that was read whole stands for any stored value.
FieldControl choice(FieldCombo& combo, const std::string& name, Needed needed = Needed::Always);
FieldControl wholeNumber(TextBox& box);
FieldControl mark(CheckBox& box);
// Of what the database holds in 16 bits.
FieldControl narrow(FieldControl control);

struct PanelField {
  int argument = 0;         // position in the statements that write the action
  const char* column = "";  // of the stored action
  FieldControl control;
  const char* parameter = nullptr;  // where it is not named as the column is
};

// Fields are shown and read in the order of their table: what reloads other lists stands first.
using PanelFields = std::vector<PanelField>;

// Shows the current row of the stored action, which is closed before the controls send statements
// of their own. False when something of it would be lost by a save.
bool showStored(const PanelFields& fields, RecordSet& row);
Arguments readValues(const PanelFields& fields);

// Item data of the selected row; error 380 without one.
std::int32_t requiredData(const ComboBox& combo, const std::string& name,
                          SourceLine where = SourceLine::current());

}  // namespace pelorin
