// Values from the database as numbers, texts and truth, and texts as numbers.
#include "base/value.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

#include "base/run_time_error.h"

namespace pelorin {
namespace {

template <class Work>
std::int32_t errorNumberOf(Work&& work) {
  try {
    work();
    return 0;
  } catch (const RunTimeError& error) {
    return error.number();
  }
}

TEST(NumericText, LeadingBlanksAreSkipped) {
  EXPECT_EQ(parseInt32("   42"), 42);
}

TEST(NumericText, SignIsOptional) {
  EXPECT_EQ(parseInt32("+7"), 7);
  EXPECT_EQ(parseInt32("-7"), -7);
  EXPECT_EQ(parseInt32("  -7"), -7);
}

TEST(NumericText, FractionHasAFullStop) {
  EXPECT_DOUBLE_EQ(parseNumber("6.25"), 6.25);
  EXPECT_DOUBLE_EQ(parseNumber("-.5"), -0.5);
  EXPECT_DOUBLE_EQ(parseNumber("5."), 5.0);
  EXPECT_DOUBLE_EQ(parseNumber("6,25"), 6.0);
}

TEST(NumericText, WhatFollowsTheNumberIsIgnored) {
  EXPECT_EQ(parseInt32("15 frames"), 15);
  EXPECT_EQ(parseInt32("1e5"), 1);
  EXPECT_EQ(parseInt32("12-3"), 12);
  EXPECT_EQ(parseInt32("0x10"), 0);
}

TEST(NumericText, NoNumberIsZero) {
  for (const char* text : {"", "   ", "-", "+", ".", "abc", "--5", "+-5", "inf", "nan"}) {
    EXPECT_EQ(parseNumber(text), 0) << text;
  }
}

TEST(NumericText, LeadingZerosAreDecimal) {
  EXPECT_EQ(parseInt32("00042"), 42);
  EXPECT_EQ(parseInt32("010"), 10);
}

TEST(NumericText, HalvesRoundToEven) {
  EXPECT_EQ(parseInt32("0.5"), 0);
  EXPECT_EQ(parseInt32("1.5"), 2);
  EXPECT_EQ(parseInt32("2.5"), 2);
  EXPECT_EQ(parseInt32("-1.5"), -2);
}

TEST(NumericText, BeyondThe32BitsIsOverflow) {
  EXPECT_EQ(parseInt32("2147483647"), 2147483647);
  EXPECT_EQ(parseInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(errorNumberOf([] { parseInt32("2147483648"); }), 6);
  EXPECT_EQ(errorNumberOf([] { parseInt32("99999999999999999999"); }), 6);
}

TEST(NumericText, RoundingCanOverflowToo) {
  EXPECT_EQ(parseInt32("2147483647.4"), 2147483647);
  EXPECT_EQ(errorNumberOf([] { parseInt32("2147483647.5"); }), 6);
}

TEST(NumericText, BeyondEveryNumberIsOverflow) {
  EXPECT_EQ(errorNumberOf([] { parseNumber(std::string(400, '9')); }), 6);
}

TEST(NumberText, IsPlainDecimal) {
  EXPECT_EQ(numberText(std::int32_t{-2147483647 - 1}), "-2147483648");
  EXPECT_EQ(numberText(std::int64_t{9223372036854775807}), "9223372036854775807");
  EXPECT_EQ(numberText(std::int16_t{5}), "5");
  EXPECT_EQ(numberText(6.25), "6.25");
  EXPECT_EQ(numberText(0.1), "0.1");
  EXPECT_EQ(numberText(30.0), "30");
  EXPECT_EQ(numberText(1e21), "1000000000000000000000");
}

TEST(NumberText, HasAFullStopInEveryLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"de_DE.UTF-8", "fr_FR.UTF-8", "C"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    EXPECT_EQ(numberText(6.25), "6.25") << locale;
    EXPECT_DOUBLE_EQ(parseNumber("6.25"), 6.25) << locale;
  }
  std::setlocale(LC_ALL, before.c_str());
}

TEST(EventNumberText, HasFiveDigitsWithLeadingZeros) {
  EXPECT_EQ(eventNumberText(42), "00042");
  EXPECT_EQ(eventNumberText(0), "00000");
  EXPECT_EQ(eventNumberText(99999), "99999");
}

TEST(EventNumberText, LongerNumbersAreNotCut) {
  EXPECT_EQ(eventNumberText(123456), "123456");
  EXPECT_EQ(eventNumberText(std::numeric_limits<std::int32_t>::max()), "2147483647");
}

TEST(EventNumberText, SignStandsBeforeTheZeros) {
  EXPECT_EQ(eventNumberText(-42), "-00042");
  EXPECT_EQ(eventNumberText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(DatabaseValue, NullIsEmptyZeroAndFalse) {
  const Value null = Null{};
  EXPECT_TRUE(isNull(null));
  EXPECT_EQ(toText(null), "");
  EXPECT_EQ(toInt16(null), 0);
  EXPECT_EQ(toInt32(null), 0);
  EXPECT_EQ(toInt64(null), 0);
  EXPECT_EQ(toReal(null), 0);
  EXPECT_FALSE(toBoolean(null));
}

TEST(DatabaseValue, EveryKindReadsAsText) {
  EXPECT_EQ(toText(Value{std::int64_t{42}}), "42");
  EXPECT_EQ(toText(Value{6.25}), "6.25");
  EXPECT_EQ(toText(Value{true}), "True");
  EXPECT_EQ(toText(Value{false}), "False");
  EXPECT_EQ(toText(Value{std::string("T\xC3\xBCr")}), "T\xC3\xBCr");
  EXPECT_EQ(toText(Value{Date{2.5}}), "2.5");
}

TEST(DatabaseValue, EveryKindReadsAsNumber) {
  EXPECT_EQ(toInt32(Value{std::int64_t{42}}), 42);
  EXPECT_EQ(toInt32(Value{2.5}), 2);
  EXPECT_EQ(toInt32(Value{3.5}), 4);
  EXPECT_EQ(toInt32(Value{true}), -1);
  EXPECT_EQ(toInt32(Value{std::string(" 17 x")}), 17);
  EXPECT_DOUBLE_EQ(toReal(Value{Date{2.5}}), 2.5);
}

TEST(DatabaseValue, NumbersBeyondTheWidthAreOverflow) {
  EXPECT_EQ(errorNumberOf([] { toInt16(Value{std::int64_t{32768}}); }), 6);
  EXPECT_EQ(errorNumberOf([] { toInt32(Value{std::int64_t{2147483648}}); }), 6);
  EXPECT_EQ(errorNumberOf([] { toInt32(Value{1e300}); }), 6);
  EXPECT_EQ(errorNumberOf([] { toInt64(Value{9.3e18}); }), 6);
  EXPECT_EQ(errorNumberOf([] { toInt64(Value{std::numeric_limits<double>::quiet_NaN()}); }), 6);
}

TEST(DatabaseValue, WideIntegersKeepEveryDigit) {
  EXPECT_EQ(toInt64(Value{std::int64_t{9007199254740993}}), 9007199254740993);
}

TEST(DatabaseValue, AnyNumberButZeroIsTrue) {
  EXPECT_TRUE(toBoolean(Value{std::int64_t{1}}));
  EXPECT_TRUE(toBoolean(Value{std::int64_t{-1}}));
  EXPECT_TRUE(toBoolean(Value{0.5}));
  EXPECT_FALSE(toBoolean(Value{std::int64_t{0}}));
  EXPECT_TRUE(toBoolean(Value{true}));
}

TEST(DatabaseValue, TextIsTrueAsWordInAnyCaseOrAsNumber) {
  for (const char* text : {"True", "true", "TRUE", "1", "-1"}) {
    EXPECT_TRUE(toBoolean(Value{std::string(text)})) << text;
  }
  for (const char* text : {"False", "0", "", "yes"}) {
    EXPECT_FALSE(toBoolean(Value{std::string(text)})) << text;
  }
}

TEST(Narrowing, RefusesWhatDoesNotFit) {
  EXPECT_EQ(narrowInt16(-32768), -32768);
  EXPECT_EQ(errorNumberOf([] { narrowInt16(32768); }), 6);
  EXPECT_EQ(narrowInt32(2147483647), 2147483647);
  EXPECT_EQ(errorNumberOf([] { narrowInt32(-2147483649); }), 6);
}

}  // namespace
}  // namespace pelorin
