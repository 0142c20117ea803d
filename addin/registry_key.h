// Owner of a registry key that is open for writing.
#pragma once

#include <windows.h>

#include <string>

namespace pelorin {

class RegistryKey {
 public:
  // Creates the key where it is missing. Throws the system's error.
  RegistryKey(HKEY parent, const std::wstring& path);
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() { RegCloseKey(key_); }

  // `name` null is the key's default value.
  void setText(const wchar_t* name, const std::wstring& text) const;

 private:
  HKEY key_ = nullptr;
};

// Deletes a key with all that is below it; one that is missing is fine. Throws the system's error.
void deleteKey(HKEY parent, const std::wstring& path);

// Whether a key is there; `view` may be KEY_WOW64_32KEY or KEY_WOW64_64KEY.
bool keyExists(HKEY parent, const std::wstring& path, REGSAM view);

}  // namespace pelorin
