// A database value, and what it reads as: a null is an empty text, the number 0 and False.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace pelorin {

struct Null {
  bool operator==(const Null&) const = default;
};

// Days since 30 December 1899, the day's part as a fraction.
struct Date {
  double days = 0;
  bool operator==(const Date&) const = default;
};

// Of a type that the component does not know. Only who reads it gets the error: 13.
struct Unreadable {
  bool operator==(const Unreadable&) const = default;
};

using Value = std::variant<Null, std::int64_t, double, bool, std::string, Date, Unreadable>;

inline bool isNull(const Value& value) {
  return std::holds_alternative<Null>(value);
}
std::string toText(const Value& value);
// Reals are rounded half to even. Error 6 when the width is exceeded; texts are read as parseNumber
// does.
std::int64_t toInt64(const Value& value);
std::int32_t toInt32(const Value& value);
std::int16_t toInt16(const Value& value);
double toReal(const Value& value);
bool toBoolean(const Value& value);

// Decimal text with a full stop, whatever the locale, in the fewest digits that read back the same.
std::string numberText(std::int64_t number);
std::string numberText(std::int32_t number);
std::string numberText(double number);
// Five digits with leading zeros, as event numbers are shown and compared.
std::string eventNumberText(std::int32_t eventId);

// Leading blanks, an optional sign, digits, an optional fraction with a full stop; the rest is
// ignored, and no number is 0.
double parseNumber(std::string_view text);
// The same, rounded; error 6 when beyond the width.
std::int32_t parseInt32(std::string_view text);

// Error 6 when the number does not fit.
std::int32_t narrowInt32(std::int64_t number);
std::int16_t narrowInt16(std::int64_t number);

}  // namespace pelorin
