#include "base/value.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/run_time_error.h"
#include "base/text_key.h"

namespace pelorin {

namespace {

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void overflow() {
  throw RunTimeError(error_number::overflow, "Overflow");
}

[[noreturn]] void typeMismatch() {
  throw RunTimeError(error_number::typeMismatch, "Type mismatch");
}

std::int64_t roundToInt64(double number) {
  constexpr double limit = 9223372036854775808.0;
  const double rounded = std::nearbyint(number);
  if (!(rounded >= -limit && rounded < limit)) overflow();
  return static_cast<std::int64_t>(rounded);
}

template <class Narrow>
Narrow narrow(std::int64_t number) {
  if (number < std::numeric_limits<Narrow>::min() || number > std::numeric_limits<Narrow>::max()) {
    overflow();
  }
  return static_cast<Narrow>(number);
}

std::size_t skipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
  return at;
}

// The part of `text` that is a number, without leading blanks and plus sign.
std::string_view numberPart(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  const bool plus = text.starts_with('+');
  if (plus) text.remove_prefix(1);
  std::size_t end = !plus && text.starts_with('-') ? 1 : 0;
  end = skipDigits(text, end);
  if (end < text.size() && text[end] == '.') end = skipDigits(text, end + 1);
  return text.substr(0, end);
}

}  // namespace

std::string numberText(std::int64_t number) {
  return std::to_string(number);
}

std::string numberText(std::int32_t number) {
  return std::to_string(number);
}

std::string numberText(double number) {
  char buffer[512];
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed);
  return error == std::errc() ? std::string(buffer, end) : std::string();
}

std::string eventNumberText(std::int32_t eventId) {
  const bool negative = eventId < 0;
  std::string digits = std::to_string(std::abs(static_cast<std::int64_t>(eventId)));
  if (digits.size() < 5) digits.insert(0, 5 - digits.size(), '0');
  return negative ? "-" + digits : digits;
}

double parseNumber(std::string_view text) {
  const std::string_view part = numberPart(text);
  double number = 0;
  const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
  if (error == std::errc::result_out_of_range) overflow();
  return error == std::errc() ? number : 0;
}

std::int32_t parseInt32(std::string_view text) {
  return narrow<std::int32_t>(roundToInt64(parseNumber(text)));
}

std::int32_t narrowInt32(std::int64_t number) {
  return narrow<std::int32_t>(number);
}
std::int16_t narrowInt16(std::int64_t number) {
  return narrow<std::int16_t>(number);
}

std::string toText(const Value& value) {
  return std::visit(Overloaded{[](Null) { return std::string(); },
                               [](std::int64_t number) { return numberText(number); },
                               [](double number) { return numberText(number); },
                               [](bool truth) { return std::string(truth ? "True" : "False"); },
                               [](const std::string& text) { return text; },
                               [](Date date) { return numberText(date.days); },
                               [](Unreadable) -> std::string { typeMismatch(); }},
                    value);
}

double toReal(const Value& value) {
  return std::visit(
      Overloaded{
          [](Null) { return 0.0; }, [](std::int64_t number) { return static_cast<double>(number); },
          [](double number) { return number; }, [](bool truth) { return truth ? -1.0 : 0.0; },
          [](const std::string& text) { return parseNumber(text); },
          [](Date date) { return date.days; }, [](Unreadable) -> double { typeMismatch(); }},
      value);
}

std::int64_t toInt64(const Value& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
  return roundToInt64(toReal(value));
}

std::int32_t toInt32(const Value& value) {
  return narrowInt32(toInt64(value));
}
std::int16_t toInt16(const Value& value) {
  return narrowInt16(toInt64(value));
}

bool toBoolean(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    return equalNoCase(*text, "True") || parseNumber(*text) != 0;
  }
  return toReal(value) != 0;
}

}  // namespace pelorin
