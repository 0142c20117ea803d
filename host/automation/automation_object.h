// Base of the objects that the host offers to late-bound clients.
//
//   class Field : public AutomationObject<Field> {
//    public:
//     static constexpr Member members[] = {{L"Value", &Field::value}, {L"Name", &Field::name}};
//     ...
//     Variant value(const MemberCall& call);
//   };
//
// The first member is the object's default one. A member that is not a method is asked for its
// value, with or without arguments, or put: call.isPut(). What a member throws reaches the client
// as an exception with number and description.
#pragma once

#include <atomic>
#include <exception>
#include <iterator>

#include "host/automation/member_call.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

// S_OK or DISP_E_EXCEPTION; to be called while an exception is handled.
HRESULT reportException(const wchar_t* source, EXCEPINFO* info) noexcept;

bool sameMember(const wchar_t* left, const wchar_t* right) noexcept;

template <class Self>
class AutomationObject : public IDispatch {
 public:
  class Member {
   public:
    constexpr Member(const wchar_t* memberName, Variant (Self::*handler)(const MemberCall&))
        : name(memberName), handler_(handler) {}
    constexpr Member(const wchar_t* memberName, Variant (Self::*reader)(const MemberCall&) const)
        : name(memberName), reader_(reader) {}

    Variant call(Self& self, const MemberCall& call) const {
      return reader_ != nullptr ? (self.*reader_)(call) : (self.*handler_)(call);
    }

    const wchar_t* name;

   private:
    Variant (Self::*handler_)(const MemberCall&) = nullptr;
    Variant (Self::*reader_)(const MemberCall&) const = nullptr;
  };

  AutomationObject() = default;
  AutomationObject(const AutomationObject&) = delete;
  AutomationObject& operator=(const AutomationObject&) = delete;
  virtual ~AutomationObject() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch) && !answersTo(id)) {
      return E_NOINTERFACE;
    }
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    if (names == nullptr || ids == nullptr) return E_POINTER;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    if (count == 0) return S_OK;
    ids[0] = find(names[0]);
    return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* info, UINT*) override {
    if (parameters == nullptr) return E_POINTER;
    if (id < 0 || static_cast<std::size_t>(id) >= std::size(Self::members)) {
      return DISP_E_MEMBERNOTFOUND;
    }
    // The client may let go of the object during the call.
    const ComPtr<IDispatch> alive(this);
    try {
      const MemberCall call(flags, *parameters);
      Variant answer = Self::members[id].call(*static_cast<Self*>(this), call);
      if (result != nullptr) *result = std::exchange(static_cast<VARIANT&>(answer), VARIANT{});
      return S_OK;
    } catch (...) {
      return reportException(Self::sourceName, info);
    }
  }

 protected:
  virtual bool answersTo(REFIID) const { return false; }

 private:
  static DISPID find(const wchar_t* name) noexcept {
    for (std::size_t i = 0; i < std::size(Self::members); ++i) {
      if (sameMember(Self::members[i].name, name)) return static_cast<DISPID>(i);
    }
    return DISPID_UNKNOWN;
  }

  std::atomic<ULONG> references_{0};
};

template <class Object, class... Arguments>
ComPtr<Object> makeObject(Arguments&&... arguments) {
  return ComPtr<Object>(new Object(std::forward<Arguments>(arguments)...));
}

}  // namespace pelorin::host
