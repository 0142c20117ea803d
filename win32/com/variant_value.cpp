// What a VARIANT holds, as a plain value.
#include <charconv>
#include <limits>

#include "win32/com/bstr.h"
#include "win32/com/com_error.h"
#include "win32/com/safe_array.h"
#include "win32/com/variant.h"

namespace pelorin {

namespace {

constexpr std::int64_t currencyUnits = 10000;

// The real whose text is the float's own shortest text: 0.8, not 0.800000011920929.
double widened(float number) {
  char text[64];
  const auto [end, error] = std::to_chars(text, text + sizeof text, number);
  double wide = number;
  if (error == std::errc()) std::from_chars(text, end, wide);
  return wide;
}

Value currency(CY amount) {
  if (amount.int64 % currencyUnits == 0) return amount.int64 / currencyUnits;
  return static_cast<double>(amount.int64) / static_cast<double>(currencyUnits);
}

Value decimal(DECIMAL number) {
  LONG64 whole = 0;
  double real = 0;
  check(VarR8FromDec(&number, &real));
  DECIMAL integral{};
  const bool isWhole = SUCCEEDED(VarDecFix(&number, &integral)) &&
                       VarDecCmp(&number, &integral) == static_cast<HRESULT>(VARCMP_EQ);
  if (isWhole && SUCCEEDED(VarI8FromDec(&number, &whole))) return std::int64_t{whole};
  return real;
}

Value unsignedNumber(std::uint64_t number) {
  if (number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
    return static_cast<double>(number);
  }
  return static_cast<std::int64_t>(number);
}

Value hexText(SAFEARRAY* bytes) {
  constexpr char digits[] = "0123456789ABCDEF";
  const ArrayAccess<const std::uint8_t> access(bytes);
  std::string text = "0x";
  for (const std::uint8_t byte : access.elements()) {
    text.push_back(digits[byte >> 4]);
    text.push_back(digits[byte & 0x0F]);
  }
  return text;
}

Value direct(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return Null{};
    case VT_I1:
      return std::int64_t{static_cast<signed char>(variant.cVal)};
    case VT_UI1:
      return std::int64_t{variant.bVal};
    case VT_I2:
      return std::int64_t{variant.iVal};
    case VT_UI2:
      return std::int64_t{variant.uiVal};
    case VT_I4:
    case VT_INT:
      return std::int64_t{variant.lVal};
    case VT_UI4:
    case VT_UINT:
      return std::int64_t{variant.ulVal};
    case VT_I8:
      return std::int64_t{variant.llVal};
    case VT_UI8:
      return unsignedNumber(variant.ullVal);
    case VT_R4:
      return widened(variant.fltVal);
    case VT_R8:
      return variant.dblVal;
    case VT_CY:
      return currency(variant.cyVal);
    case VT_DECIMAL:
      return decimal(variant.decVal);
    case VT_BOOL:
      return variant.boolVal != VARIANT_FALSE;
    case VT_DATE:
      return Date{variant.date};
    case VT_BSTR:
      return toUtf8(viewOf(variant.bstrVal));
    case VT_ARRAY | VT_UI1:
      return hexText(variant.parray);
    default:
      throw comError(DISP_E_TYPEMISMATCH);
  }
}

}  // namespace

Value valueOf(const VARIANT& variant) {
  return (variant.vt & VT_BYREF) == 0 ? direct(variant) : direct(resolved(variant));
}

}  // namespace pelorin
