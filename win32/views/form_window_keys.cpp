// Dialog keys of a form's window: Tab, Enter, Escape, mnemonics.
#include <algorithm>
#include <cwctype>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/private_messages.h"

namespace pelorin {

namespace {

bool isDown(int key) {
  return GetKeyState(key) < 0;
}

bool isRepeat(const MSG& key) {
  return (key.lParam & 0x40000000) != 0;
}

bool isDroppedCombo(HWND window) {
  const Control* control = Peer::of(window) != nullptr ? &Peer::of(window)->control() : nullptr;
  return control != nullptr && control->kind() == ControlKind::ComboBox &&
         SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

// The character after a single &, in lower case; 0 when the caption has none.
wchar_t mnemonicOf(const std::string& caption) {
  const std::wstring wide = toWide(caption);
  for (std::size_t i = 0; i + 1 < wide.size(); ++i) {
    if (wide[i] != L'&') continue;
    if (wide[i + 1] != L'&') return static_cast<wchar_t>(std::towlower(wide[i + 1]));
    ++i;
  }
  return L'\0';
}

int pageWithMnemonic(const TabControl& tabs, wchar_t character) {
  const auto& captions = tabs.captions();
  const auto found = std::find_if(captions.begin(), captions.end(), [&](const auto& caption) {
    return mnemonicOf(caption) == character;
  });
  return found == captions.end() ? -1 : static_cast<int>(found - captions.begin());
}

bool answersMnemonic(const Control& control, wchar_t character) {
  const bool hasCaption =
      control.kind() == ControlKind::Button || control.kind() == ControlKind::CheckBox ||
      (control.kind() == ControlKind::Label && static_cast<const Label&>(control).useMnemonic());
  return hasCaption && control.reachable() && mnemonicOf(control.text()) == character;
}

// Steps to the page before (-1) or after (1) for the keys that do so, else 0.
int pageStep(const MSG& key) {
  if (key.message != WM_KEYDOWN || !isDown(VK_CONTROL)) return 0;
  if (key.wParam == VK_TAB) return isDown(VK_SHIFT) ? -1 : 1;
  if (key.wParam == VK_NEXT) return 1;
  return key.wParam == VK_PRIOR ? -1 : 0;
}

}  // namespace

// The key is handled when the message is dispatched and not inside the hook that took it, because
// handlers open message boxes.
MSG FormWindow::takeKey(const MSG& key) noexcept {
  key_ = key;
  MSG instead = key;
  instead.hwnd = hwnd();
  instead.message = keyMessage;
  instead.wParam = 0;
  instead.lParam = 0;
  return instead;
}

void FormWindow::handleKey() {
  if (!key_) return;
  MSG key = *key_;
  key_.reset();
  if (keyForForm(key) || form_ == nullptr || keyForPages(key) || form_ == nullptr) return;
  if (IsDialogMessageW(hwnd(), &key)) return;
  TranslateMessage(&key);
  DispatchMessageW(&key);
}

bool FormWindow::keyForForm(const MSG& key) {
  if (key.message != WM_KEYDOWN || isDown(VK_CONTROL) || isDroppedCombo(key.hwnd)) return false;
  const int code = static_cast<int>(key.wParam);
  if (code != key_code::enter && code != key_code::escape) return form_->Form_KeyDown(code);
  // A key held down must not save twice.
  if (!isRepeat(key)) form_->userKeyDown(code);
  return true;
}

bool FormWindow::keyForPages(const MSG& key) {
  if (key.message == WM_SYSCHAR) return mnemonicForPages(key);
  const int step = pageStep(key);
  TabControl* tabs = step == 0 ? nullptr : reachableTabs();
  if (tabs == nullptr) return false;
  const int count = static_cast<int>(tabs->captions().size());
  selectPage(*tabs, (tabs->tab() + step + count) % count);
  return true;
}

// Pages and controls may share a letter: the next one after the focus has its turn.
bool FormWindow::mnemonicForPages(const MSG& key) {
  TabControl* tabs = reachableTabs();
  const auto character = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(key.wParam)));
  const int page = tabs == nullptr ? -1 : pageWithMnemonic(*tabs, character);
  if (page == -1 || page == tabs->tab()) return false;
  std::vector<Control*> order = form_->controls();
  const auto focused = std::find(order.begin(), order.end(), form_->focused());
  if (focused != order.end()) std::rotate(order.begin(), focused + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(), [&](const Control* control) {
    return control == tabs || answersMnemonic(*control, character);
  });
  if (next == order.end() || *next != tabs) return false;
  selectPage(*tabs, page);
  return true;
}

TabControl* FormWindow::reachableTabs() const {
  for (Control* control : form_->controls()) {
    if (control->kind() == ControlKind::TabControl && control->reachable()) {
      return static_cast<TabControl*>(control);
    }
  }
  return nullptr;
}

}  // namespace pelorin
