// Every type that ADO knows becomes the value it stands for.
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "win32/com/bstr.h"
#include "win32/com/safe_array.h"
#include "win32/com/variant.h"

namespace pelorin::test {
namespace {

VARIANT of(VARTYPE type) {
  VARIANT variant{};
  variant.vt = type;
  return variant;
}

TEST(ValueOf, EmptyAndNullAreNull) {
  EXPECT_EQ(valueOf(of(VT_EMPTY)), Value(Null{}));
  EXPECT_EQ(valueOf(of(VT_NULL)), Value(Null{}));
}

TEST(ValueOf, IntegersOfEveryWidthKeepTheirSign) {
  VARIANT v = of(VT_I1);
  v.cVal = -3;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{-3}));
  v = of(VT_UI1);
  v.bVal = 200;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{200}));
  v = of(VT_I2);
  v.iVal = -300;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{-300}));
  v = of(VT_UI2);
  v.uiVal = 60000;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{60000}));
  v = of(VT_I4);
  v.lVal = -70000;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{-70000}));
  v = of(VT_UI4);
  v.ulVal = 4000000000U;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{4000000000}));
  v = of(VT_I8);
  v.llVal = -9000000000000;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{-9000000000000}));
  v = of(VT_UI8);
  v.ullVal = 18446744073709551615ULL;
  EXPECT_EQ(valueOf(v), Value(18446744073709551615.0));
}

TEST(ValueOf, FloatIsItsShortestText) {
  VARIANT v = of(VT_R4);
  v.fltVal = 0.8F;
  EXPECT_EQ(toText(valueOf(v)), "0.8");
  v.fltVal = 7.5F;
  EXPECT_EQ(valueOf(v), Value(7.5));
}

TEST(ValueOf, DoubleStaysExact) {
  VARIANT v = of(VT_R8);
  v.dblVal = 0.1;
  EXPECT_EQ(valueOf(v), Value(0.1));
}

TEST(ValueOf, BooleanIsTrueForAnythingButZero) {
  VARIANT v = of(VT_BOOL);
  v.boolVal = VARIANT_TRUE;
  EXPECT_EQ(valueOf(v), Value(true));
  v.boolVal = 1;
  EXPECT_EQ(valueOf(v), Value(true));
  v.boolVal = VARIANT_FALSE;
  EXPECT_EQ(valueOf(v), Value(false));
}

TEST(ValueOf, CurrencyIsWholeOrReal) {
  VARIANT v = of(VT_CY);
  v.cyVal.int64 = 120000;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{12}));
  v.cyVal.int64 = -12345;
  EXPECT_EQ(valueOf(v), Value(-1.2345));
}

TEST(ValueOf, DecimalIsWholeOrReal) {
  Variant v;
  ASSERT_EQ(VarDecFromI8(9007199254740993, &v.decVal), S_OK);
  v.vt = VT_DECIMAL;
  EXPECT_EQ(valueOf(v), Value(std::int64_t{9007199254740993}));
  ASSERT_EQ(VarDecFromR8(12.25, &v.decVal), S_OK);
  v.vt = VT_DECIMAL;
  EXPECT_EQ(valueOf(v), Value(12.25));
}

TEST(ValueOf, DateKeepsItsFraction) {
  VARIANT v = of(VT_DATE);
  v.date = 46000.25;
  EXPECT_EQ(valueOf(v), Value(Date{46000.25}));
}

TEST(ValueOf, TextIsUtf8) {
  EXPECT_EQ(valueOf(Variant::text("T\xC3\xBCr")), Value(std::string("T\xC3\xBCr")));
  EXPECT_EQ(valueOf(of(VT_BSTR)), Value(std::string()));
}

TEST(ValueOf, BytesAreHexadecimalText) {
  SafeArray bytes(SafeArrayCreateVector(VT_UI1, 0, 2));
  ArrayAccess<unsigned char>(bytes.get()).elements()[1] = 0xAF;
  VARIANT v = of(VT_ARRAY | VT_UI1);
  v.parray = bytes.get();
  EXPECT_EQ(valueOf(v), Value(std::string("0x00AF")));
}

TEST(ValueOf, ReferencesAreFollowed) {
  LONG number = 5;
  EXPECT_EQ(valueOf(Variant::reference(number)), Value(std::int64_t{5}));
}

TEST(ValueOf, ObjectsAreATypeMismatch) {
  try {
    valueOf(of(VT_DISPATCH));
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 13);
  }
}

}  // namespace
}  // namespace pelorin::test
