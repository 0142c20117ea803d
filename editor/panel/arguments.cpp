#include "editor/panel/arguments.h"

namespace pelorin {

std::string quoted(const std::string& text) {
  return "'" + text + "'";
}

namespace {

std::string argumentText(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return quoted(*text);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
  if (const auto* real = std::get_if<double>(&value)) return numberText(*real);
  return numberText(toInt64(value));
}

}  // namespace

std::string argumentList(const Arguments& arguments) {
  std::string list;
  for (const auto& [position, argument] : arguments) {
    if (!list.empty()) list += ", ";
    list += argumentText(argument.value);
  }
  return list;
}

}  // namespace pelorin
