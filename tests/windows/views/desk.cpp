#include "tests/windows/views/desk.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace pelorin::test {

namespace {

constexpr DWORD patience = 5000;

BOOL CALLBACK addWindow(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

INPUT keyInput(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  return input;
}

INPUT mouseInput(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  return input;
}

void send(std::vector<INPUT> inputs) {
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// Wine counts no resources, but keeps the table of handles where Windows has it.
int gdiObjectsInTable() {
  struct Entry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t user;
  };
  constexpr std::size_t entries = 0x4000;
  constexpr std::size_t field = sizeof(void*) == 8 ? 0xF8 : 0x94;
  const FARPROC ask = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb");
  const auto block = reinterpret_cast<const std::byte*(WINAPI*)()>(reinterpret_cast<void*>(ask));
  const Entry* table = nullptr;
  std::memcpy(&table, block() + field, sizeof table);
  return static_cast<int>(
      std::count_if(table, table + entries, [](const Entry& entry) { return entry.type != 0; }));
}

}  // namespace

int gdiObjects() {
  const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  return counted != 0 ? static_cast<int>(counted) : gdiObjectsInTable();
}

std::vector<HWND> topLevelWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), &addWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

Desk::Desk() : screen_(std::make_unique<NativeScreen>(GetModuleHandleW(nullptr))) {
  host_ = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 900, 700,
                          nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(host_);
  screen_->setHostWindow(hostHandle());
  pump();
}

Desk::~Desk() {
  screen_.reset();
  destroyHost();
  pump();
}

void Desk::destroyHost() {
  if (host_ != nullptr) DestroyWindow(std::exchange(host_, nullptr));
}

void Desk::pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool Desk::pumpUntil(const std::function<bool()>& condition) {
  const DWORD start = GetTickCount();
  for (;;) {
    pump();
    if (condition()) return true;
    const DWORD passed = GetTickCount() - start;
    if (passed >= patience) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

void Desk::open(Form& form) {
  screen().show(form, hostHandle());
  ASSERT_TRUE(pumpUntil([&] { return GetForegroundWindow() == windowOf(form); }));
}

HWND Desk::windowOf(const Form& form) const {
  return reinterpret_cast<HWND>(screen_->windowOf(form));
}

HWND Desk::find(const Form& form, const std::string& controlName) const {
  return driver::findControl(windowOf(form), controlName);
}

void Desk::press(WORD key, const std::vector<WORD>& held) {
  std::vector<INPUT> inputs;
  for (WORD modifier : held) inputs.push_back(keyInput(modifier, false));
  inputs.push_back(keyInput(key, false));
  inputs.push_back(keyInput(key, true));
  for (auto modifier = held.rbegin(); modifier != held.rend(); ++modifier) {
    inputs.push_back(keyInput(*modifier, true));
  }
  send(inputs);
  pump();
}

void Desk::type(const std::wstring& text) {
  for (wchar_t character : text) {
    PostMessageW(GetFocus(), WM_CHAR, character, 1);
    pump();
  }
}

void Desk::click(HWND window, POINT at) {
  ClientToScreen(window, &at);
  SetCursorPos(at.x, at.y);
  pump();
  send({mouseInput(MOUSEEVENTF_LEFTDOWN), mouseInput(MOUSEEVENTF_LEFTUP)});
  pump();
}

void Desk::clickMiddle(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  click(window, {area.right / 2, area.bottom / 2});
}

std::string Desk::focusName() const {
  return driver::designName(GetFocus());
}

}  // namespace pelorin::test
