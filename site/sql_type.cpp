#include "site/sql_type.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "base/text_key.h"
#include "site/errors.h"

namespace pelorin::site {

namespace {

using Kind = SqlType::Kind;

constexpr std::array<std::pair<std::string_view, Kind>, 6> plainTypes{{{"int", Kind::Int},
                                                                       {"smallint", Kind::SmallInt},
                                                                       {"tinyint", Kind::TinyInt},
                                                                       {"bit", Kind::Bit},
                                                                       {"float", Kind::Float},
                                                                       {"sysname", Kind::SysName}}};

constexpr int sysNameLength = 128;

std::string_view trimBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

template <class Number>
bool wholeNumber(std::string_view text, Number& number) {
  text = trimBlanks(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

std::pair<std::int64_t, std::int64_t> range(Kind kind) {
  switch (kind) {
    case Kind::SmallInt:
      return {std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};
    case Kind::TinyInt:
      return {0, 255};
    default:
      return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
  }
}

std::int64_t integerFromReal(double number, const SqlType& type) {
  constexpr double limit = 9223372036854775808.0;
  if (number != std::nearbyint(number) || !(number >= -limit && number < limit)) {
    throw conversionError("numeric", sqlTypeText(type));
  }
  return static_cast<std::int64_t>(number);
}

std::int64_t integerFromText(const std::string& text, const SqlType& type) {
  std::int64_t number = 0;
  if (!wholeNumber(text, number)) throw conversionError("nvarchar", sqlTypeText(type));
  return number;
}

std::int64_t integerFrom(const Value& value, const SqlType& type) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
  if (const auto* text = std::get_if<std::string>(&value)) return integerFromText(*text, type);
  return integerFromReal(toReal(value), type);
}

Value toInteger(const Value& value, const SqlType& type) {
  const std::int64_t number = integerFrom(value, type);
  const auto [lowest, highest] = range(type.kind);
  if (number < lowest || number > highest) {
    const bool wide = number != static_cast<std::int32_t>(number);
    throw conversionError(wide ? "numeric" : "int", sqlTypeText(type));
  }
  return number;
}

Value toBit(const Value& value, const SqlType& type) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    const std::string_view word = trimBlanks(*text);
    if (equalNoCase(word, "true")) return true;
    if (equalNoCase(word, "false")) return false;
    return integerFromText(*text, type) != 0;
  }
  return toReal(value) != 0;
}

Value toFloat(const Value& value) {
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? 1.0 : 0.0;
  const auto* text = std::get_if<std::string>(&value);
  if (!text) return toReal(value);
  double number = 0;
  if (!wholeNumber(*text, number) || !std::isfinite(number)) {
    throw conversionError("nvarchar", "float");
  }
  return number;
}

Value toBoundedText(const Value& value, int length) {
  const auto* truth = std::get_if<bool>(&value);
  std::string text = truth ? std::string(*truth ? "1" : "0") : toText(value);
  if (utf16Length(text) > static_cast<std::size_t>(length)) {
    throw truncationError();
  }
  return text;
}

}  // namespace

SqlType parseSqlType(std::string_view text) {
  for (const auto& [name, kind] : plainTypes) {
    if (text == name) return {kind, kind == Kind::SysName ? sysNameLength : 0};
  }
  constexpr std::string_view prefix = "nvarchar(";
  int length = 0;
  if (text.starts_with(prefix) && text.back() == ')') {
    const std::string_view digits = text.substr(prefix.size(), text.size() - prefix.size() - 1);
    if (wholeNumber(digits, length) && length > 0) return {Kind::Text, length};
  }
  throw databaseError("'" + std::string(text) + "' is no type of the site database.");
}

std::string sqlTypeText(const SqlType& type) {
  for (const auto& [name, kind] : plainTypes) {
    if (kind == type.kind) return std::string(name);
  }
  return "nvarchar(" + std::to_string(type.length) + ")";
}

Value convertTo(const SqlType& type, const Value& value) {
  if (isNull(value)) return value;
  switch (type.kind) {
    case Kind::Bit:
      return toBit(value, type);
    case Kind::Float:
      return toFloat(value);
    case Kind::Text:
    case Kind::SysName:
      return toBoundedText(value, type.length);
    default:
      return toInteger(value, type);
  }
}

std::size_t utf16Length(std::string_view utf8) {
  std::size_t units = 0;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) != 0x80U) units += byte >= 0xF0U ? 2 : 1;
  }
  return units;
}

}  // namespace pelorin::site
