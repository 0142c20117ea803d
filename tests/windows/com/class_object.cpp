#include "tests/windows/com/class_object.h"

#include <utility>

#include "win32/com/com_error.h"

namespace pelorin::test {

class ClassObject::Factory final : public IClassFactory {
 public:
  explicit Factory(Make make) : make_(std::move(make)) {}

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *object = known ? static_cast<IClassFactory*>(this) : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() noexcept override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) noexcept override {
    return make_()->QueryInterface(id, object);
  }
  STDMETHODIMP LockServer(BOOL) noexcept override { return S_OK; }

 private:
  ~Factory() = default;

  ULONG references_ = 1;
  Make make_;
};

ClassObject::ClassObject(REFCLSID id, Make make) {
  const auto factory = ComPtr<IClassFactory>::attach(new Factory(std::move(make)));
  check(CoRegisterClassObject(id, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                              &registration_));
}

void ClassObject::revoke() noexcept {
  if (registration_ != 0) CoRevokeClassObject(registration_);
  registration_ = 0;
}

}  // namespace pelorin::test
