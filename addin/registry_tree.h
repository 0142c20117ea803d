// A registry key with everything below it, remembered so that it can be brought back.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace pelorin {

class RegistryTree {
 public:
  // As it is now; a key that is missing is remembered as missing.
  RegistryTree(HKEY root, std::wstring path);

  // Takes away what came since and writes what changed or went. What cannot be done stays undone.
  void restore() const noexcept;

 private:
  struct Value {
    std::wstring name;
    DWORD type;
    std::vector<BYTE> data;
    bool operator==(const Value&) const = default;
  };
  struct Key {
    std::wstring path;
    std::vector<Value> values;
  };

  void read(const std::wstring& path);
  const Key* find(const std::wstring& path) const;
  void bringBack(const Key& key, const RegistryTree& now) const;

  HKEY root_;
  std::wstring top_;
  // Every key before those below it.
  std::vector<Key> keys_;
};

}  // namespace pelorin
