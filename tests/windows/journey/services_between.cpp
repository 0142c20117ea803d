#include "tests/windows/journey/services_between.h"

#include <stdexcept>

namespace pelorin::test {

ComPtr<ServicesBetween> ServicesBetween::make(ComPtr<IDispatch> services) {
  return ComPtr<ServicesBetween>::attach(new ServicesBetween(std::move(services)));
}

void ServicesBetween::failOnce(const wchar_t* member, int which) {
  std::wstring name = member;
  LPOLESTR names = name.data();
  if (FAILED(services_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &failing_))) {
    throw std::invalid_argument("the services have no such member");
  }
  failCall(which);
  anyMember_ = false;
}

void ServicesBetween::failCall(int which) {
  anyMember_ = true;
  failed_.clear();
  which_ = which;
  calls_ = 0;
}

STDMETHODIMP ServicesBetween::QueryInterface(REFIID id, void** object) noexcept {
  if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch)) return E_NOINTERFACE;
  *object = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ServicesBetween::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP ServicesBetween::GetTypeInfoCount(UINT* count) noexcept {
  *count = 0;
  return S_OK;
}

STDMETHODIMP ServicesBetween::GetIDsOfNames(REFIID interfaceId, LPOLESTR* names, UINT count,
                                            LCID locale, DISPID* ids) noexcept {
  const HRESULT result = services_->GetIDsOfNames(interfaceId, names, count, locale, ids);
  if (SUCCEEDED(result)) names_[ids[0]] = names[0];
  return result;
}

STDMETHODIMP ServicesBetween::Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* argument) noexcept {
  if (!counts(id) || ++calls_ != which_) {
    return services_->Invoke(id, interfaceId, locale, flags, parameters, result, exception,
                             argument);
  }
  failed_ = names_[id];
  exception->wCode = 0;
  exception->scode = E_FAIL;
  exception->bstrDescription = SysAllocString(L"The host is busy");
  return DISP_E_EXCEPTION;
}

}  // namespace pelorin::test
