#include "win32/services/recognise.h"

#include <ole2.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "win32/com/ado_ids.h"
#include "win32/com/late_bound.h"

namespace pelorin {

namespace {

HWND siteWindow(const ComPtr<IUnknown>& object) {
  const auto site = object.query<IOleWindow>(IID_IOleWindow);
  HWND window = nullptr;
  if (!site || FAILED(site->GetWindow(&window))) return nullptr;
  return liveWindow(window);
}

// Handles come as integers or, from script, as reals; nothing else is a handle.
HWND handleOf(const VARIANT& property) {
  const Value value = valueOf(property);
  if (!std::holds_alternative<std::int64_t>(value) && !std::holds_alternative<double>(value)) {
    return nullptr;
  }
  const std::int64_t number = toInt64(value);
  return std::in_range<INT_PTR>(number) ? reinterpret_cast<HWND>(static_cast<INT_PTR>(number))
                                        : nullptr;
}

HWND propertyWindow(const ComPtr<IUnknown>& object) {
  ComPtr<IDispatch> automation = object.query<IDispatch>(IID_IDispatch);
  if (!automation) return nullptr;
  LateBound form(std::move(automation));
  if (!form.knows(L"hWnd")) return nullptr;
  return liveWindow(handleOf(form.call(L"hWnd")));
}

bool hasConnectionMembers(const ComPtr<IUnknown>& object) {
  ComPtr<IDispatch> automation = object.query<IDispatch>(IID_IDispatch);
  if (!automation) return false;
  LateBound connection(std::move(automation));
  constexpr std::array members{L"Execute", L"BeginTrans", L"ConnectionString", L"State"};
  return std::all_of(members.begin(), members.end(),
                     [&](const wchar_t* member) { return connection.knows(member); });
}

}  // namespace

HWND liveWindow(HWND window) {
  DWORD process = 0;
  if (window == nullptr || GetWindowThreadProcessId(window, &process) == 0) return nullptr;
  return process == GetCurrentProcessId() ? window : nullptr;
}

HWND windowOf(IUnknown* object) {
  const ComPtr<IUnknown> held(object);
  HWND window = siteWindow(held);
  if (window == nullptr) window = propertyWindow(held);
  return window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
}

bool isAdoConnection(IUnknown* object) {
  const ComPtr<IUnknown> held(object);
  return std::any_of(std::begin(ado::connectionInterfaces), std::end(ado::connectionInterfaces),
                     [&](const IID& id) { return bool{held.query<IUnknown>(id)}; }) ||
         hasConnectionMembers(held);
}

}  // namespace pelorin
