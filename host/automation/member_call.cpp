#include "host/automation/member_call.h"

#include <limits>

#include "base/run_time_error.h"

namespace pelorin::host {

namespace {

constexpr std::int32_t argumentNotOptional = 449;

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

Variant wholeNumber(std::int64_t number) {
  if (number >= std::numeric_limits<std::int32_t>::min() &&
      number <= std::numeric_limits<std::int32_t>::max()) {
    return Variant::int32(static_cast<std::int32_t>(number));
  }
  Variant result;
  result.vt = VT_I8;
  result.llVal = number;
  return result;
}

Variant dateVariant(Date date) {
  Variant result;
  result.vt = VT_DATE;
  result.date = date.days;
  return result;
}

}  // namespace

const VARIANT& target(const VARIANT& variant) noexcept {
  return variant.vt == (VT_BYREF | VT_VARIANT) ? *variant.pvarVal : variant;
}

bool MemberCall::has(std::size_t index) const noexcept {
  if (index >= count()) return false;
  const VARIANT& given = parameters_.rgvarg[count() - 1 - index];
  return given.vt != VT_ERROR || given.scode != DISP_E_PARAMNOTFOUND;
}

const VARIANT& MemberCall::argument(std::size_t index) const {
  if (!has(index)) throw RunTimeError(argumentNotOptional, "Argument not optional");
  return target(parameters_.rgvarg[count() - 1 - index]);
}

ComPtr<IDispatch> MemberCall::object(std::size_t index) const {
  return has(index) ? objectOf(argument(index)) : ComPtr<IDispatch>();
}

ComPtr<IDispatch> objectOf(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_DISPATCH:
      return ComPtr<IDispatch>(variant.pdispVal);
    case VT_BYREF | VT_DISPATCH:
      return ComPtr<IDispatch>(*variant.ppdispVal);
    case VT_UNKNOWN:
      return ComPtr<IUnknown>(variant.punkVal).query<IDispatch>(IID_IDispatch);
    default:
      return {};
  }
}

Variant boolean(bool truth) {
  Variant result;
  result.vt = VT_BOOL;
  result.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  return result;
}

Variant variantOf(const Value& value) {
  return std::visit(Overloaded{[](Null) { return Variant::null(); },
                               [](std::int64_t number) { return wholeNumber(number); },
                               [](double number) { return Variant::real(number); },
                               [](bool truth) { return boolean(truth); },
                               [](const std::string& text) { return Variant::text(text); },
                               [](Date date) { return dateVariant(date); },
                               [](Unreadable) { return Variant::null(); }},
                    value);
}

}  // namespace pelorin::host
