#include "tests/windows/com/component_dll.h"

#include <array>
#include <stdexcept>

#include "Pelorin.h"
#include "win32/com/com_error.h"
#include "win32/text/utf16.h"

namespace pelorin::test {

namespace {

std::wstring fileOfDll() {
  std::array<wchar_t, 1024> folder{};
  GetEnvironmentVariableW(L"PELORIN_DIST", folder.data(), static_cast<DWORD>(folder.size()));
  return std::wstring(folder.data()) + L"\\Pelorin.dll";
}

}  // namespace

ComponentDll::ComponentDll() : path_(fileOfDll()), module_(LoadLibraryW(path_.c_str())) {
  if (module_ == nullptr) throw std::runtime_error("cannot load " + toUtf8(path_));
}

const ComponentDll& ComponentDll::instance() {
  static const ComponentDll dll;
  return dll;
}

template <class Function>
Function ComponentDll::function(const char* name) const {
  const auto address = reinterpret_cast<void (*)()>(GetProcAddress(module_, name));
  if (address == nullptr) throw std::runtime_error(std::string("not exported: ") + name);
  return reinterpret_cast<Function>(address);
}

HRESULT ComponentDll::getClassObject(REFCLSID id, REFIID interfaceId, void** object) const {
  using Get = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  return function<Get>("DllGetClassObject")(id, interfaceId, object);
}

ComPtr<IClassFactory> ComponentDll::factory() const {
  ComPtr<IClassFactory> factory;
  check(getClassObject(CLSID_TAManager, IID_IClassFactory, factory.putVoid()));
  return factory;
}

HRESULT ComponentDll::canUnloadNow() const {
  return function<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow")();
}

HRESULT ComponentDll::registerServer() const {
  return function<HRESULT(STDAPICALLTYPE*)()>("DllRegisterServer")();
}

HRESULT ComponentDll::unregisterServer() const {
  return function<HRESULT(STDAPICALLTYPE*)()>("DllUnregisterServer")();
}

HRESULT ComponentDll::install(bool install, const wchar_t* arguments) const {
  using Install = HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR);
  return function<Install>("DllInstall")(install ? TRUE : FALSE, arguments);
}

}  // namespace pelorin::test
