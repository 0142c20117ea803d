// Makes the add-in class's objects.
#pragma once

#include <ole2.h>

#include "addin/com_object.h"

namespace pelorin {

class ClassFactory final : public IClassFactory {
 public:
  ClassFactory() = default;
  ClassFactory(const ClassFactory&) = delete;
  ClassFactory& operator=(const ClassFactory&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override;
  STDMETHODIMP_(ULONG) Release() noexcept override;
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override;
  STDMETHODIMP LockServer(BOOL lock) noexcept override;

 private:
  ~ClassFactory() = default;

  ReferenceCount references_;
};

}  // namespace pelorin
