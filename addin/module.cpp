#include "addin/module.h"

#include <atomic>

#include "win32/com/com_error.h"

namespace pelorin {

namespace {

std::atomic<long> uses{0};

HMODULE moduleOfThisCode(DWORD flags) noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | flags,
                     reinterpret_cast<LPCWSTR>(&moduleOfThisCode), &module);
  return module;
}

}  // namespace

HMODULE ownModule() noexcept {
  return moduleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT);
}

std::wstring ownPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(ownModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw comError(HRESULT_FROM_WIN32(GetLastError()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void pinOwnModule() noexcept {
  moduleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_PIN);
}

ModuleUse::ModuleUse() noexcept {
  ++uses;
}

ModuleUse::~ModuleUse() {
  --uses;
}

bool ModuleUse::any() noexcept {
  return uses != 0;
}

void lockModule(bool lock) noexcept {
  uses += lock ? 1 : -1;
}

}  // namespace pelorin
