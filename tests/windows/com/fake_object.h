// An automation object made of functions, as a host written in any language could hand one over. It
// writes every call with its arguments to a list.
//
//   const auto host = FakeObject::make();
//   host->on(L"OperatorID", answer(Variant::int32(7)));
#pragma once

#include <dispex.h>

#include <functional>
#include <string>
#include <vector>

#include "win32/com/variant.h"

namespace pelorin::test {

struct Call {
  WORD kind;
  std::vector<VARIANT*> arguments;  // first one first
  VARIANT* result;
  EXCEPINFO* exception;
};

using Action = std::function<HRESULT(Call&)>;

class FakeObject final : public IDispatchEx {
 public:
  static ComPtr<FakeObject> make() { return ComPtr<FakeObject>::attach(new FakeObject); }
  FakeObject(const FakeObject&) = delete;
  FakeObject& operator=(const FakeObject&) = delete;

  FakeObject& on(const std::wstring& member, Action action);
  // The member at DISPID_VALUE.
  FakeObject& onDefault(Action action);
  // Answers names only through IDispatchEx, as some script engines' objects do.
  FakeObject& extendedOnly();
  // Answers another interface's id, too.
  FakeObject& answersTo(const IID& id);

  // "GRS(I4 5, BSTR text)"; "put Name(..)" and "putref Name(..)" for assignments.
  const std::vector<std::string>& calls() const noexcept { return calls_; }
  void forgetCalls() { calls_.clear(); }
  int nameLookups() const noexcept { return nameLookups_; }
  ULONG references() const noexcept { return references_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() noexcept override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) noexcept override;
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argument) noexcept override;

  STDMETHODIMP GetDispID(BSTR name, DWORD flags, DISPID* id) noexcept override;
  STDMETHODIMP InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                        IServiceProvider*) noexcept override {
    return E_NOTIMPL;
  }
  STDMETHODIMP DeleteMemberByName(BSTR, DWORD) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP DeleteMemberByDispID(DISPID) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberProperties(DISPID, DWORD, DWORD*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberName(DISPID, BSTR*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetNextDispID(DWORD, DISPID, DISPID*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetNameSpaceParent(IUnknown**) noexcept override { return E_NOTIMPL; }

 private:
  struct Member {
    std::wstring name;
    Action action;
  };

  FakeObject() = default;
  ~FakeObject() = default;

  HRESULT find(const wchar_t* name, DISPID* id);
  const Member* memberAt(DISPID id) const;

  ULONG references_ = 1;
  std::vector<Member> members_;
  Action default_;
  std::vector<IID> alsoAnswers_;
  std::vector<std::string> calls_;
  bool extendedOnly_ = false;
  int nameLookups_ = 0;
};

// Gives a value.
Action answer(Variant value);
Action answerObject(const ComPtr<FakeObject>& object);
// Fails with DISP_E_EXCEPTION, this code and text.
Action fail(HRESULT code, const std::wstring& text);
// Fails without an explanation.
Action refuse(HRESULT result);

// "I4 5", "BYREF I4 5", "BSTR text", "MISSING".
std::string described(const VARIANT& argument);

}  // namespace pelorin::test
