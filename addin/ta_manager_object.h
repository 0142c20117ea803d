// The add-in class as the host sees it: the dual interface _TAManager over the members of
// TAManager.
#pragma once

#include <ocidl.h>
#include <ole2.h>

#include <atomic>

#include "Pelorin.h"
#include "addin/call_arguments.h"
#include "addin/com_object.h"
#include "addin/process.h"
#include "component/ta_manager_members.h"

namespace pelorin {

class TAManagerObject final : public _TAManager, public IProvideClassInfo {
 public:
  TAManagerObject();
  TAManagerObject(const TAManagerObject&) = delete;
  TAManagerObject& operator=(const TAManagerObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override;
  STDMETHODIMP_(ULONG) Release() noexcept override;

  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) noexcept override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) noexcept override;
  // Takes what script engines send: references, named arguments, numbers as texts, a plain
  // assignment to an object property, any value as MessageValues.
  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* exception, UINT* argument) noexcept override;

  STDMETHODIMP get_InDesign(VARIANT_BOOL* result) noexcept override;
  STDMETHODIMP Activate() noexcept override;
  STDMETHODIMP Destroy() noexcept override;
  STDMETHODIMP putref_Parent(IDispatch* obj) noexcept override;
  STDMETHODIMP putref_NTConnection(IDispatch* obj) noexcept override;
  STDMETHODIMP putref_DBConnection(IDispatch* obj) noexcept override;
  STDMETHODIMP RaiseForm() noexcept override;
  STDMETHODIMP OnEvent(LONG MessageID, LONG MessageType, BSTR EngineName, DATE DateTimeDT,
                       DATE DateTimePC, BSTR Address, BSTR MessageDescription,
                       SAFEARRAY* MessageValues) noexcept override;
  STDMETHODIMP OnStream(BSTR strValue) noexcept override;
  STDMETHODIMP Install(BSTR SourcePath) noexcept override;
  STDMETHODIMP UnInstall() noexcept override;

  STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override;

 private:
  ~TAManagerObject() = default;

  template <class Work>
  HRESULT member(Work&& work) noexcept;
  // An object property.
  HRESULT set(DISPID id, IUnknown* object) noexcept;
  void setParent(IUnknown* object);
  static void setServices(Module1& module, const ComPtr<IUnknown>& object);
  static void setDatabase(Module1& module, const ComPtr<IUnknown>& object);

  ITypeInfo* typeInfo();
  HRESULT assign(DISPID id, const DISPPARAMS& parameters);
  HRESULT call(DISPID id, const DISPPARAMS& parameters, UINT& argument);
  HRESULT readInDesign(const DISPPARAMS& parameters, VARIANT* result);

  // First, so that it ends last.
  process::ObjectUse use_;
  ReferenceCount references_;
  TAManagerMembers manager_;
  std::atomic<HWND> parent_{nullptr};
  ComPtr<ITypeInfo> typeInfo_;
};

}  // namespace pelorin
