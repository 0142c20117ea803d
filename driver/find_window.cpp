#include "driver/find_window.h"

#include <array>

#include "driver/waiting.h"
#include "win32/text/utf16.h"

namespace pelorin::driver {

namespace {

// Visits until one is found.
struct Search {
  const Wanted& wanted;
  HWND found = nullptr;

  static BOOL CALLBACK step(HWND window, LPARAM address) noexcept {
    Search& search = *reinterpret_cast<Search*>(address);
    try {
      if (!search.wanted(window)) return TRUE;
    } catch (...) {
      return TRUE;
    }
    search.found = window;
    return FALSE;
  }
};

// A form that is slow to say its name must not pass for a message box.
constexpr UINT answerMilliseconds = 1000 * UINT{patience.count()};

LRESULT ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, answerMilliseconds, &answer);
  return static_cast<LRESULT>(answer);
}

// Of the labels in a message box the text is the longest; the icon's is empty.
std::string boxText(HWND box) {
  std::string text;
  findChild(box, [&](HWND child) {
    if (classOf(child) == L"Static" && textOf(child).size() > text.size()) text = textOf(child);
    return false;
  });
  return text;
}

// A button, and nothing but texts and buttons.
bool looksLikeBox(HWND window) {
  bool button = false;
  const HWND other = findChild(window, [&](HWND child) {
    const std::wstring kind = classOf(child);
    button = button || kind == L"Button";
    return kind != L"Button" && kind != L"Static";
  });
  return button && other == nullptr;
}

// Windows are looked at before they are asked: a form may be busy.
bool isBox(HWND window) {
  if (!isShown(window) || classOf(window) != L"#32770" || !looksLikeBox(window)) return false;
  return processOf(window) != GetCurrentProcessId() || designName(window).empty();
}

}  // namespace

HWND findTopLevel(const Wanted& wanted) {
  Search search{.wanted = wanted};
  EnumWindows(&Search::step, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND findChild(HWND parent, const Wanted& wanted) {
  if (parent == nullptr) return nullptr;  // the system would take it for the desktop
  Search search{.wanted = wanted};
  EnumChildWindows(parent, &Search::step, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

DWORD processOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

DWORD threadOf(HWND window) {
  return GetWindowThreadProcessId(window, nullptr);
}

std::string designName(HWND window) {
  static const UINT message = RegisterWindowMessageW(L"WM_GETCONTROLNAME");
  std::array<wchar_t, 128> name{};
  const LRESULT length = ask(window, message, name.size(), reinterpret_cast<LPARAM>(name.data()));
  if (length <= 0 || static_cast<std::size_t>(length) > name.size()) return {};
  return toUtf8(name.data());
}

HWND findForm(const std::string& name) {
  return findTopLevel([&](HWND window) {
    return processOf(window) == GetCurrentProcessId() && isShown(window) &&
           designName(window) == name;
  });
}

HWND waitForForm(const std::string& name) {
  return waitFor("window " + name, [&] {
    const HWND form = findForm(name);
    const std::optional<OpenBox> box = form == nullptr ? findBox() : std::nullopt;
    if (box) throw DriverError("instead of the window " + name + " a box says: " + box->text);
    return form;
  });
}

void waitUntilClosed(HWND form) {
  waitFor("end of a window", [&] { return !IsWindow(form) || !IsWindowVisible(form); });
}

HWND findControl(HWND form, const std::string& name) {
  return findChild(form, [&](HWND window) { return designName(window) == name; });
}

HWND control(HWND form, const std::string& name) {
  const HWND found = findControl(form, name);
  if (found == nullptr) throw DriverError(designName(form) + " has no control " + name);
  return found;
}

std::wstring classOf(HWND window) {
  std::array<wchar_t, 128> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

std::string textOf(HWND window) {
  const LRESULT length = ask(window, WM_GETTEXTLENGTH, 0, 0);
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT copied =
      ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return toUtf8(text);
}

bool isShown(HWND window) {
  return IsWindowVisible(window) != FALSE;
}

std::vector<OpenBox> findBoxes(DWORD process) {
  std::vector<OpenBox> boxes;
  findTopLevel([&](HWND window) {
    if ((process == 0 || processOf(window) == process) && isBox(window)) {
      boxes.push_back({.window = window, .title = textOf(window), .text = boxText(window)});
    }
    return false;
  });
  return boxes;
}

std::optional<OpenBox> findBox() {
  const std::vector<OpenBox> boxes = findBoxes();
  return boxes.empty() ? std::nullopt : std::optional(boxes.front());
}

OpenBox waitForBox() {
  return *waitFor("message box", findBox);
}

OpenBox answerBox(int button) {
  OpenBox box = waitForBox();
  PostMessageW(box.window, WM_COMMAND, static_cast<WPARAM>(button), 0);
  waitUntilClosed(box.window);
  return box;
}

}  // namespace pelorin::driver
