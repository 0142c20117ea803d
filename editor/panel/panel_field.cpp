#include "editor/panel/panel_field.h"

#include <utility>

#include "common/combo_helpers.h"

namespace pelorin {

namespace {

Value integerOf(const RecordSet& row, const char* column) {
  return std::int64_t{row.int32(column)};
}

bool anyValue(const Value&) {
  return true;
}

bool isNeeded(Needed needed, const Control& control) {
  return needed == Needed::Always || (needed == Needed::WhileVisible && control.visible());
}

}  // namespace

std::int32_t requiredData(const ComboBox& combo, const std::string& name, SourceLine where) {
  if (combo.listIndex() < 0) {
    throw RunTimeError(error_number::invalidPropertyValue, "Nothing is selected: " + name,
                       where.line());
  }
  return combo.selectedData();
}

FieldControl choice(FieldCombo& combo, const std::string& name, Needed needed) {
  return {integerOf,
          [&combo](const Value& stored) { SelectComboItemByData(combo, toInt32(stored)); },
          [&combo, needed](const Value& stored) {
            if (combo.listRead) return true;
            if (combo.listIndex() < 0) return !isNeeded(needed, combo) && toInt32(stored) == 0;
            return combo.selectedData() == toInt32(stored);
          },
          [&combo, name, needed]() -> Value {
            if (combo.listIndex() < 0 && !isNeeded(needed, combo)) return std::int64_t{0};
            return std::int64_t{requiredData(combo, name)};
          }};
}

FieldControl wholeNumber(TextBox& box) {
  return {[](const RecordSet& row, const char* column) -> Value { return row.text(column); },
          [&box](const Value& stored) { box.setText(toText(stored)); }, anyValue,
          [&box]() -> Value { return std::int64_t{parseInt32(box.text())}; }};
}

FieldControl mark(CheckBox& box) {
  return {[](const RecordSet& row, const char* column) -> Value { return row.boolean(column); },
          [&box](const Value& stored) { box.setChecked(toBoolean(stored)); }, anyValue,
          [&box]() -> Value { return box.checked(); }};
}

FieldControl narrow(FieldControl control) {
  control.read = [read = std::move(control.read)]() -> Value {
    return std::int64_t{toInt16(read())};
  };
  return control;
}

bool showStored(const PanelFields& fields, RecordSet& row) {
  std::vector<Value> stored;
  for (const PanelField& field : fields) {
    stored.push_back(field.control.fromRow(row, field.column));
  }
  row.close();
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i].control.show(stored[i]);
  bool whole = true;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    whole = whole && fields[i].control.standsFor(stored[i]);
  }
  return whole;
}

Arguments readValues(const PanelFields& fields) {
  Arguments values;
  for (const PanelField& field : fields) {
    values[field.argument] = {field.parameter == nullptr ? field.column : field.parameter,
                              field.control.read()};
  }
  return values;
}

}  // namespace pelorin
