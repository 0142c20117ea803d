#include "addin/registration.h"

#include <ole2.h>

#include <array>
#include <vector>

#include "Pelorin.h"
#include "addin/module.h"
#include "addin/registry_key.h"
#include "addin/registry_tree.h"
#include "addin/type_library.h"
#include "win32/com/com_error.h"

// In the system's library for long, but not in the headers.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID library, WORD majorVersion, WORD minorVersion,
                                        LCID locale, SYSKIND system);
}

namespace pelorin {

namespace {

constexpr const wchar_t* classText = L"Pelorin trigger actions add-in";
constexpr const wchar_t* programId = L"Pelorin.TAManager";

constexpr bool is64Bit = sizeof(void*) == 8;
constexpr SYSKIND ownSystem = is64Bit ? SYS_WIN64 : SYS_WIN32;
constexpr REGSAM otherView = is64Bit ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

HKEY rootOf(Scope scope) {
  return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring classes(const std::wstring& path) {
  return L"Software\\Classes\\" + path;
}

std::wstring textOf(REFGUID id) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::wstring classKey() {
  return classes(L"CLSID\\" + textOf(CLSID_TAManager));
}

void writeValue(HKEY root, const std::wstring& path, const std::wstring& text) {
  RegistryKey(root, path).setText(nullptr, text);
}

void writeClass(HKEY root) {
  const std::wstring key = classKey();
  writeValue(root, key, classText);
  const RegistryKey server(root, key + L"\\InprocServer32");
  server.setText(nullptr, ownPath());
  server.setText(L"ThreadingModel", L"Apartment");
  writeValue(root, key + L"\\ProgID", programId);
  writeValue(root, key + L"\\TypeLib", textOf(LIBID_Pelorin));
  writeValue(root, key + L"\\Version", L"1.0");
  writeValue(root, key + L"\\Programmable", L"");
}

void writeProgramId(HKEY root) {
  writeValue(root, classes(programId), classText);
  writeValue(root, classes(programId) + L"\\CLSID", textOf(CLSID_TAManager));
}

void writeTypeLibrary(Scope scope) {
  const ComPtr<ITypeLib> library = ownTypeLibrary();
  std::wstring path = ownPath();
  const HRESULT result = scope == Scope::Machine
                             ? RegisterTypeLib(library.get(), path.data(), nullptr)
                             : RegisterTypeLibForUser(library.get(), path.data(), nullptr);
  // Automation's own word for missing rights.
  check(result == TYPE_E_REGISTRYACCESS ? E_ACCESSDENIED : result);
}

// One that was never registered is fine.
void removeTypeLibrary(Scope scope) {
  if (scope == Scope::Machine) {
    UnRegisterTypeLib(LIBID_Pelorin, 1, 0, LOCALE_NEUTRAL, ownSystem);
  } else {
    UnRegisterTypeLibForUser(LIBID_Pelorin, 1, 0, LOCALE_NEUTRAL, ownSystem);
  }
}

void writeAll(Scope scope) {
  writeClass(rootOf(scope));
  writeProgramId(rootOf(scope));
  writeTypeLibrary(scope);
}

// All that writeAll touches.
std::vector<RegistryTree> treesOf(HKEY root) {
  std::vector<RegistryTree> trees;
  for (const std::wstring& path :
       {classKey(), classes(programId), classes(L"TypeLib\\" + textOf(LIBID_Pelorin)),
        classes(L"Interface\\" + textOf(IID__TAManager))}) {
    trees.emplace_back(root, path);
  }
  return trees;
}

}  // namespace

void registerServer(Scope scope) {
  const std::vector<RegistryTree> before = treesOf(rootOf(scope));
  try {
    writeAll(scope);
  } catch (const std::exception&) {
    for (const RegistryTree& tree : before) tree.restore();
    throw;
  }
}

void unregisterServer(Scope scope) {
  const HKEY root = rootOf(scope);
  deleteKey(root, classKey());
  removeTypeLibrary(scope);
  if (keyExists(root, classKey(), otherView)) return;
  deleteKey(root, classes(programId));
}

}  // namespace pelorin
