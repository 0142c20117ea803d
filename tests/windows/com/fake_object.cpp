#include "tests/windows/com/fake_object.h"

#include <algorithm>
#include <utility>

#include "win32/com/bstr.h"
#include "win32/text/utf16.h"

namespace pelorin::test {

namespace {

constexpr IID extendedDispatch{
    0xA6EF9860, 0xC720, 0x11D0, {0x93, 0x37, 0x00, 0xA0, 0xC9, 0x0D, 0xCA, 0xA9}};

std::string verbOf(WORD kind) {
  if ((kind & DISPATCH_PROPERTYPUTREF) != 0) return "putref ";
  return (kind & DISPATCH_PROPERTYPUT) != 0 ? "put " : "";
}

std::string typeName(VARTYPE type) {
  switch (type) {
    case VT_I2:
      return "I2";
    case VT_I4:
      return "I4";
    case VT_R8:
      return "R8";
    case VT_BSTR:
      return "BSTR";
    default:
      return "VT" + std::to_string(type);
  }
}

}  // namespace

std::string described(const VARIANT& argument) {
  if (argument.vt == VT_ERROR) return "MISSING";
  if (argument.vt == VT_NULL) return "NULL";
  if (argument.vt == VT_DISPATCH) return argument.pdispVal == nullptr ? "NOTHING" : "OBJECT";
  const std::string reference = (argument.vt & VT_BYREF) != 0 ? "BYREF " : "";
  return reference + typeName(argument.vt & static_cast<VARTYPE>(~VT_BYREF)) + " " +
         toText(valueOf(argument));
}

FakeObject& FakeObject::on(const std::wstring& member, Action action) {
  members_.push_back({member, std::move(action)});
  return *this;
}

FakeObject& FakeObject::onDefault(Action action) {
  default_ = std::move(action);
  return *this;
}

FakeObject& FakeObject::extendedOnly() {
  extendedOnly_ = true;
  return *this;
}

FakeObject& FakeObject::answersTo(const IID& id) {
  alsoAnswers_.push_back(id);
  return *this;
}

STDMETHODIMP FakeObject::QueryInterface(REFIID id, void** object) noexcept {
  const bool known = id == IID_IUnknown || id == IID_IDispatch ||
                     (extendedOnly_ && id == extendedDispatch) ||
                     std::find(alsoAnswers_.begin(), alsoAnswers_.end(), id) != alsoAnswers_.end();
  *object = known ? static_cast<IDispatchEx*>(this) : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) FakeObject::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP FakeObject::GetTypeInfoCount(UINT* count) noexcept {
  *count = 0;
  return S_OK;
}

HRESULT FakeObject::find(const wchar_t* name, DISPID* id) {
  ++nameLookups_;
  for (std::size_t i = 0; i < members_.size(); ++i) {
    if (lstrcmpiW(members_[i].name.c_str(), name) == 0) {
      *id = static_cast<DISPID>(i + 1);
      return S_OK;
    }
  }
  *id = DISPID_UNKNOWN;
  return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP FakeObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) noexcept {
  return extendedOnly_ ? E_NOTIMPL : find(names[0], ids);
}

STDMETHODIMP FakeObject::GetDispID(BSTR name, DWORD, DISPID* id) noexcept {
  return find(name, id);
}

const FakeObject::Member* FakeObject::memberAt(DISPID id) const {
  const auto index = static_cast<std::size_t>(id) - 1;
  return id > 0 && index < members_.size() ? &members_[index] : nullptr;
}

STDMETHODIMP FakeObject::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                VARIANT* result, EXCEPINFO* exception, UINT*) noexcept {
  const Member* member = memberAt(id);
  const bool isDefault = id == DISPID_VALUE && default_;
  if (member == nullptr && !isDefault) return DISP_E_MEMBERNOTFOUND;
  Call call{kind, {}, result, exception};
  std::string text = verbOf(kind) + (isDefault ? "default" : toUtf8(member->name)) + "(";
  for (UINT i = parameters->cArgs; i > 0; --i) {
    call.arguments.push_back(&parameters->rgvarg[i - 1]);
    text += (i == parameters->cArgs ? "" : ", ") + described(parameters->rgvarg[i - 1]);
  }
  calls_.push_back(text + ")");
  // A copy: the action may change the members.
  const Action action = isDefault ? default_ : member->action;
  return action(call);
}

Action answer(Variant value) {
  return [value = std::move(value)](Call& call) {
    if (call.result != nullptr) *call.result = Variant(value).release();
    return S_OK;
  };
}

Action answerObject(const ComPtr<FakeObject>& object) {
  return answer(Variant::object(object.get()));
}

Action fail(HRESULT code, const std::wstring& text) {
  return [=](Call& call) {
    call.exception->scode = code;
    call.exception->bstrDescription = Bstr(std::wstring_view(text)).release();
    call.exception->bstrSource = Bstr(std::wstring_view(L"source")).release();
    return DISP_E_EXCEPTION;
  };
}

Action refuse(HRESULT result) {
  return [=](Call&) { return result; };
}

}  // namespace pelorin::test
