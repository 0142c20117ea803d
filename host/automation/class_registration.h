// Offers classes to everybody in this process, ahead of what is registered on the machine.
#pragma once

#include <atomic>
#include <functional>

#include "win32/com/com_error.h"
#include "win32/com/com_ptr.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

class ClassFactory : public IClassFactory {
 public:
  using Create = std::function<ComPtr<IDispatch>()>;

  explicit ClassFactory(Create create) : create_(std::move(create)) {}
  virtual ~ClassFactory() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Create create_;
  std::atomic<ULONG> references_{0};
};

// One class, on offer to the apartment of the thread that made it while it lives.
class ClassRegistration {
 public:
  ClassRegistration(const CLSID& id, ClassFactory::Create create);
  ClassRegistration(const ClassRegistration&) = delete;
  ClassRegistration& operator=(const ClassRegistration&) = delete;
  ~ClassRegistration() { CoRevokeClassObject(cookie_); }

 private:
  DWORD cookie_ = 0;
};

}  // namespace pelorin::host
