// Stands between the component and its host's services, and lets one call of them fail.
#pragma once

#include <map>
#include <string>

#include "win32/com/com_ptr.h"
#include "win32/text/windows_api.h"

namespace pelorin::test {

class ServicesBetween final : public IDispatch {
 public:
  // Released by the last reference to it.
  static ComPtr<ServicesBetween> make(ComPtr<IDispatch> services);
  ServicesBetween(const ServicesBetween&) = delete;
  ServicesBetween& operator=(const ServicesBetween&) = delete;

  // Call number `which` of the member from now on fails, and no other.
  void failOnce(const wchar_t* member, int which = 1);
  // The same, counting the calls of all members; 0 lets none fail.
  void failCall(int which);
  // Name of the member that was let fail since then; empty when none was.
  const std::wstring& failed() const noexcept { return failed_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() noexcept override;
  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID interfaceId, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* ids) noexcept override;
  STDMETHODIMP Invoke(DISPID id, REFIID interfaceId, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* argument) noexcept override;

 private:
  explicit ServicesBetween(ComPtr<IDispatch> services) : services_(std::move(services)) {}
  ~ServicesBetween() = default;

  ComPtr<IDispatch> services_;
  ULONG references_ = 1;
  bool counts(DISPID id) const noexcept { return anyMember_ || id == failing_; }

  std::map<DISPID, std::wstring> names_;
  DISPID failing_ = DISPID_UNKNOWN;
  bool anyMember_ = false;
  std::wstring failed_;
  int which_ = 0;
  int calls_ = 0;
};

}  // namespace pelorin::test
