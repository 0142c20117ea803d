#include "win32/com/late_bound.h"

#include <dispex.h>

#include <vector>

#include "win32/com/bstr.h"
#include "win32/com/com_error.h"

namespace pelorin {

namespace {

constexpr std::int32_t objectRequired = 424;
constexpr WORD methodOrValue = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr IID anyInterface{};
// Declared in dispex.h, but in no library.
constexpr IID extendedDispatch{
    0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

struct Outcome {
  HRESULT result = S_OK;
  Variant value;
  ExceptionInfo exception;

  void throwIfFailed() {
    if (result == DISP_E_EXCEPTION) throw exception.error();
    check(result);
  }
};

// Last argument first, as the called side counts them. The arguments stay the caller's.
std::vector<VARIANT> reversed(std::span<const Variant> arguments) {
  return {arguments.rbegin(), arguments.rend()};
}

// Holds the object itself: during the call everybody else may let go of it.
void invoke(IDispatch* called, DISPID id, std::span<const Variant> arguments, Outcome& outcome) {
  const ComPtr<IDispatch> object(called);
  std::vector<VARIANT> list = reversed(arguments);
  DISPPARAMS parameters{list.data(), nullptr, static_cast<UINT>(list.size()), 0};
  UINT argument = 0;
  outcome.result = object->Invoke(id, anyInterface, LOCALE_USER_DEFAULT, methodOrValue, &parameters,
                                  outcome.value.put(), outcome.exception.put(), &argument);
}

void assign(IDispatch* called, DISPID id, WORD kind, const Variant& value) {
  const ComPtr<IDispatch> object(called);
  VARIANT borrowed = value;
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&borrowed, &newValue, 1, 1};
  UINT argument = 0;
  Outcome outcome;
  outcome.result = object->Invoke(id, anyInterface, LOCALE_USER_DEFAULT, kind, &parameters, nullptr,
                                  outcome.exception.put(), &argument);
  outcome.throwIfFailed();
}

// Script engines' objects may answer names only here.
HRESULT findExtended(const ComPtr<IDispatch>& object, const wchar_t* member, DISPID& id) {
  const auto extended = object.query<IDispatchEx>(extendedDispatch);
  if (!extended) return E_NOTIMPL;
  const Bstr name{std::wstring_view(member)};
  return extended->GetDispID(name.get(), fdexNameCaseInsensitive, &id);
}

bool meansNoDefault(HRESULT result) {
  return result == DISP_E_MEMBERNOTFOUND || result == DISP_E_BADPARAMCOUNT || result == E_NOTIMPL;
}

}  // namespace

LateBound objectIn(const Variant& variant) {
  ComPtr<IDispatch> object = variant.asObject();
  if (!object) throw RunTimeError(objectRequired, "Object required");
  return LateBound(std::move(object));
}

HRESULT LateBound::find(const wchar_t* member, DISPID& id) {
  const auto cached = ids_.find(member);
  if (cached != ids_.end()) {
    id = cached->second;
    return S_OK;
  }
  const ComPtr<IDispatch> object(object_.get());
  std::wstring name(member);
  LPOLESTR text = name.data();
  HRESULT result = object->GetIDsOfNames(anyInterface, &text, 1, LOCALE_USER_DEFAULT, &id);
  if (result == E_NOTIMPL) result = findExtended(object, member, id);
  if (SUCCEEDED(result)) ids_.emplace(name, id);
  return result;
}

DISPID LateBound::idOf(const wchar_t* member) {
  DISPID id = DISPID_UNKNOWN;
  check(find(member, id));
  return id;
}

bool LateBound::knows(const wchar_t* member) {
  DISPID id = DISPID_UNKNOWN;
  return SUCCEEDED(find(member, id));
}

Variant LateBound::call(const wchar_t* member, std::initializer_list<Variant> arguments) {
  Outcome outcome;
  invoke(object_.get(), idOf(member), arguments, outcome);
  outcome.throwIfFailed();
  return std::move(outcome.value);
}

LateBound LateBound::object(const wchar_t* member, std::initializer_list<Variant> arguments) {
  return objectIn(call(member, arguments));
}

void LateBound::put(const wchar_t* member, const Variant& value) {
  assign(object_.get(), idOf(member), DISPATCH_PROPERTYPUT, value);
}

void LateBound::putReference(const wchar_t* member, IDispatch* value) {
  assign(object_.get(), idOf(member), DISPATCH_PROPERTYPUTREF, Variant::object(value));
}

LateBound LateBound::item(const Variant& key) {
  Outcome outcome;
  invoke(object_.get(), DISPID_VALUE, {&key, 1}, outcome);
  if (meansNoDefault(outcome.result)) return object(L"Item", {key});
  outcome.throwIfFailed();
  return objectIn(outcome.value);
}

}  // namespace pelorin
