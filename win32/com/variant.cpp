#include "win32/com/variant.h"

#include <utility>

#include "win32/com/bstr.h"
#include "win32/com/com_error.h"

namespace pelorin {

Variant::Variant(const Variant& other) : VARIANT{} {
  VARIANT source = other;
  check(VariantCopy(this, &source));
}

Variant::Variant(Variant&& other) noexcept : VARIANT(other.release()) {}

Variant& Variant::operator=(const Variant& other) {
  Variant copy(other);
  std::swap<VARIANT>(*this, copy);
  return *this;
}

Variant& Variant::operator=(Variant&& other) noexcept {
  Variant taken(std::move(other));
  std::swap<VARIANT>(*this, taken);
  return *this;
}

Variant::~Variant() {
  VariantClear(this);
}

Variant Variant::int16(std::int16_t number) noexcept {
  Variant variant;
  variant.vt = VT_I2;
  variant.iVal = number;
  return variant;
}

Variant Variant::int32(std::int32_t number) noexcept {
  Variant variant;
  variant.vt = VT_I4;
  variant.lVal = number;
  return variant;
}

Variant Variant::real(double number) noexcept {
  Variant variant;
  variant.vt = VT_R8;
  variant.dblVal = number;
  return variant;
}

Variant Variant::text(std::string_view utf8) {
  Variant variant;
  variant.bstrVal = Bstr(utf8).release();
  variant.vt = VT_BSTR;
  return variant;
}

Variant Variant::object(IDispatch* object) noexcept {
  Variant variant;
  variant.vt = VT_DISPATCH;
  variant.pdispVal = ComPtr<IDispatch>(object).release();
  return variant;
}

Variant Variant::null() noexcept {
  Variant variant;
  variant.vt = VT_NULL;
  return variant;
}

Variant Variant::missing() noexcept {
  Variant variant;
  variant.vt = VT_ERROR;
  variant.scode = DISP_E_PARAMNOTFOUND;
  return variant;
}

Variant Variant::reference(LONG& number) noexcept {
  Variant variant;
  variant.vt = VT_BYREF | VT_I4;
  variant.plVal = &number;
  return variant;
}

VARIANT Variant::release() noexcept {
  return std::exchange<VARIANT>(*this, VARIANT{});
}

VARIANT* Variant::put() noexcept {
  VariantClear(this);
  return this;
}

ComPtr<IDispatch> Variant::asObject() const {
  const Variant direct = resolved(*this);
  if (direct.vt != VT_DISPATCH && direct.vt != VT_UNKNOWN) return {};
  return ComPtr<IUnknown>(direct.punkVal).query<IDispatch>(IID_IDispatch);
}

Variant resolved(const VARIANT& variant) {
  VARIANT source = variant;
  Variant copy;
  check(VariantCopyInd(&copy, &source));
  return copy;
}

}  // namespace pelorin
