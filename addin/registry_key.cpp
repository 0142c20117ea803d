#include "addin/registry_key.h"

#include "win32/com/com_error.h"

namespace pelorin {

namespace {

void checkStatus(LSTATUS status) {
  if (status != ERROR_SUCCESS) throw comError(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

}  // namespace

RegistryKey::RegistryKey(HKEY parent, const std::wstring& path) {
  checkStatus(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                              nullptr, &key_, nullptr));
}

void RegistryKey::setText(const wchar_t* name, const std::wstring& text) const {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  checkStatus(
      RegSetValueExW(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), bytes));
}

void deleteKey(HKEY parent, const std::wstring& path) {
  const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
  if (status != ERROR_FILE_NOT_FOUND) checkStatus(status);
}

bool keyExists(HKEY parent, const std::wstring& path, REGSAM view) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

}  // namespace pelorin
