// The built DLL, loaded from the folder that the environment variable PELORIN_DIST names.
#pragma once

#include <ole2.h>

#include <string>

#include "win32/com/com_ptr.h"

namespace pelorin::test {

class ComponentDll {
 public:
  static const ComponentDll& instance();

  const std::wstring& path() const noexcept { return path_; }
  HMODULE module() const noexcept { return module_; }

  ComPtr<IClassFactory> factory() const;
  HRESULT getClassObject(REFCLSID id, REFIID interfaceId, void** object) const;
  HRESULT canUnloadNow() const;
  HRESULT registerServer() const;
  HRESULT unregisterServer() const;
  HRESULT install(bool install, const wchar_t* arguments) const;

 private:
  ComponentDll();
  template <class Function>
  Function function(const char* name) const;

  std::wstring path_;
  HMODULE module_;
};

}  // namespace pelorin::test
