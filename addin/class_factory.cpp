#include "addin/class_factory.h"

#include "addin/ta_manager_object.h"
#include "win32/com/com_ptr.h"

namespace pelorin {

namespace {

ComPtr<_TAManager> newManager() {
  return ComPtr<_TAManager>::attach(new TAManagerObject);
}

}  // namespace

STDMETHODIMP ClassFactory::QueryInterface(REFIID id, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
  *object = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef() noexcept {
  return references_.add();
}

STDMETHODIMP_(ULONG) ClassFactory::Release() noexcept {
  const ULONG left = references_.remove();
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  return boundary([&] { return newManager()->QueryInterface(id, object); });
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) noexcept {
  lockModule(lock != FALSE);
  return S_OK;
}

}  // namespace pelorin
