#include "addin/registry_tree.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/current_error.h"

namespace pelorin {

namespace {

class OpenKey {
 public:
  OpenKey(HKEY root, const std::wstring& path, REGSAM access) noexcept {
    if (RegOpenKeyExW(root, path.c_str(), 0, access, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  HKEY get() const noexcept { return key_; }
  explicit operator bool() const noexcept { return key_ != nullptr; }

 private:
  HKEY key_ = nullptr;
};

// The system's limits are 255 characters for a key's name and 16,383 for a value's.
constexpr std::size_t longestName = 16384;

std::vector<std::wstring> namesBelow(HKEY key) {
  std::vector<std::wstring> names;
  std::array<wchar_t, 256> name{};
  for (DWORD index = 0;; ++index) {
    auto length = static_cast<DWORD>(name.size());
    if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.emplace_back(name.data(), length);
  }
}

}  // namespace

RegistryTree::RegistryTree(HKEY root, std::wstring path) : root_(root), top_(std::move(path)) {
  read(top_);
}

void RegistryTree::read(const std::wstring& path) {
  const OpenKey key(root_, path, KEY_READ);
  if (!key) return;
  Key found{path, {}};
  std::wstring name(longestName, L'\0');
  for (DWORD index = 0;; ++index) {
    auto length = static_cast<DWORD>(name.size());
    DWORD size = 0;
    Value value{};
    if (RegEnumValueW(key.get(), index, name.data(), &length, nullptr, &value.type, nullptr,
                      &size) != ERROR_SUCCESS) {
      break;
    }
    value.name.assign(name, 0, length);
    value.data.resize(size);
    RegQueryValueExW(key.get(), value.name.c_str(), nullptr, nullptr, value.data.data(), &size);
    found.values.push_back(std::move(value));
  }
  keys_.push_back(std::move(found));
  for (const std::wstring& below : namesBelow(key.get())) {
    std::wstring whole = path;
    read(whole.append(1, L'\\').append(below));
  }
}

const RegistryTree::Key* RegistryTree::find(const std::wstring& path) const {
  const auto found =
      std::find_if(keys_.begin(), keys_.end(), [&](const Key& key) { return key.path == path; });
  return found == keys_.end() ? nullptr : &*found;
}

void RegistryTree::restore() const noexcept {
  errorOf([this] {
    const RegistryTree now(root_, top_);
    std::for_each(now.keys_.rbegin(), now.keys_.rend(), [this](const Key& key) {
      if (find(key.path) == nullptr) RegDeleteKeyW(root_, key.path.c_str());
    });
    for (const Key& key : keys_) bringBack(key, now);
  });
}

// Touches only what differs: the rest may belong to somebody with more rights.
void RegistryTree::bringBack(const Key& key, const RegistryTree& now) const {
  const Key* changed = now.find(key.path);
  const std::vector<Value> present = changed == nullptr ? std::vector<Value>() : changed->values;
  if (changed != nullptr && present == key.values) return;
  HKEY opened = nullptr;
  if (RegCreateKeyExW(root_, key.path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                      nullptr, &opened, nullptr) != ERROR_SUCCESS) {
    return;
  }
  for (const Value& value : present) RegDeleteValueW(opened, value.name.c_str());
  for (const Value& value : key.values) {
    RegSetValueExW(opened, value.name.c_str(), 0, value.type, value.data.data(),
                   static_cast<DWORD>(value.data.size()));
  }
  RegCloseKey(opened);
}

}  // namespace pelorin
