#include "tests/windows/com/server_fixture.h"

#include <algorithm>
#include <vector>

#include "driver/find_window.h"
#include "win32/com/com_error.h"

namespace pelorin::test {

namespace {

Variant truth(bool value) {
  Variant variant;
  variant.vt = VT_BOOL;
  variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return variant;
}

}  // namespace

ServerTest::ServerTest() {
  form->on(L"hWnd", answer(Variant::int32(HandleToLong(window.get()))));
  offerServices();
}

ServerTest::~ServerTest() {
  closeWindows();
}

void ServerTest::offerServices() {
  services->on(L"GetResourceString", [](Call& call) {
    return answer(Variant::text("text " + std::to_string(*call.arguments[0]->plVal)))(call);
  });
  services->on(L"Security", [this](Call& call) {
    const auto security = FakeObject::make();
    const auto permissions = FakeObject::make();
    const auto permission = FakeObject::make();
    security->on(L"ComponentType", answer(Variant()));
    security->on(L"SubPermissions", answerObject(permissions));
    permissions->onDefault(answerObject(permission));
    permission->on(L"CanView", answer(truth(permitted)));
    return answerObject(security)(call);
  });
  for (const wchar_t* flag : {L"EnableCustomize", L"ZornIsVn8HardwareSupportEnabled"}) {
    services->on(flag, answer(truth(false)));
  }
}

ComPtr<_TAManager> ServerTest::create() {
  ComPtr<_TAManager> manager;
  check(ComponentDll::instance().factory()->CreateInstance(nullptr, IID__TAManager,
                                                           manager.putVoid()));
  return manager;
}

HRESULT ServerTest::invoke(const wchar_t* member, WORD kind,
                           std::initializer_list<Variant> arguments, Variant* result) {
  std::wstring name = member;
  LPOLESTR names = name.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT found = manager->GetIDsOfNames(IID{}, &names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(found)) return found;
  std::vector<Variant> list(arguments);
  std::reverse(list.begin(), list.end());
  DISPID put = DISPID_PROPERTYPUT;
  const bool assignment = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPPARAMS parameters{list.data(), assignment ? &put : nullptr, static_cast<UINT>(list.size()),
                        assignment ? 1U : 0U};
  return manager->Invoke(id, IID{}, LOCALE_USER_DEFAULT, kind, &parameters,
                         result == nullptr ? nullptr : result->put(), nullptr, nullptr);
}

HWND ServerTest::summary() {
  return driver::findTopLevel([](HWND window) {
    return driver::threadOf(window) == GetCurrentThreadId() && driver::isShown(window) &&
           driver::designName(window) == "frmTASummary";
  });
}

void ServerTest::closeWindows() {
  if (const HWND open = summary()) SendMessageW(open, WM_CLOSE, 0, 0);
  pump();
}

void ServerTest::pump() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace pelorin::test
