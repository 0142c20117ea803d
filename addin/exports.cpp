// The entry points of the DLL.
#include <ole2.h>
#include <olectl.h>

#include <string_view>

#include "Pelorin.h"
#include "addin/class_factory.h"
#include "addin/process.h"
#include "addin/registration.h"
#include "win32/com/com_ptr.h"

using pelorin::boundary;
using pelorin::Scope;

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (classId != CLSID_TAManager) return CLASS_E_CLASSNOTAVAILABLE;
  return boundary([&] {
    pelorin::pinOwnModule();
    const auto factory = pelorin::ComPtr<IClassFactory>::attach(new pelorin::ClassFactory);
    return factory->QueryInterface(id, object);
  });
}

STDAPI DllCanUnloadNow() {
  return pelorin::ModuleUse::any() || pelorin::process::hasOpenWindows() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
  return boundary([] {
    registerServer(Scope::Machine);
    return S_OK;
  });
}

STDAPI DllUnregisterServer() {
  return boundary([] {
    unregisterServer(Scope::Machine);
    return S_OK;
  });
}

// `arguments` "user" registers for the user alone.
STDAPI DllInstall(BOOL install, LPCWSTR arguments) {
  return boundary([&] {
    const bool forUser = arguments != nullptr && lstrcmpiW(arguments, L"user") == 0;
    const Scope scope = forUser ? Scope::User : Scope::Machine;
    if (install) {
      registerServer(scope);
    } else {
      unregisterServer(scope);
    }
    return S_OK;
  });
}
