// Window messages that concern the form as a whole.

#include "win32/views/form_window.h"
#include "win32/views/popup_menu.h"
#include "win32/views/private_messages.h"
#include "win32/views/reflect.h"
#include "win32/views/windows_api.h"

namespace pelorin {

LRESULT FormWindow::onMessage(UINT message, WPARAM w, LPARAM l) {
  if (message == WM_DESTROY) windowGoes();
  if (form_ != nullptr) {
    if (const auto answered = answer(message, w, l)) return *answered;
  }
  // A window whose form is unloaded only waits for being destroyed.
  if (message == WM_CLOSE) return 0;
  const LRESULT result = native(message, w, l);
  if (message == WM_ACTIVATE && LOWORD(w) != WA_INACTIVE && HIWORD(w) == 0) activated();
  return result;
}

std::optional<LRESULT> FormWindow::answer(UINT message, WPARAM w, LPARAM l) {
  if (const auto reflected = reflect(message, w, l)) return reflected;
  if (const auto act = answerAct(message, w, l)) return act;
  return answerSurroundings(message, w, l);
}

std::optional<LRESULT> FormWindow::answerAct(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case keyMessage:
      handleKey();
      return 0;
    case WM_COMMAND:
      // From a host that runs the dialog keyboard for our window itself.
      if (w == IDOK) form_->userKeyDown(key_code::enter);
      if (w == IDCANCEL) form_->userKeyDown(key_code::escape);
      return 0;
    case WM_CLOSE:
      if (IsWindowEnabled(hwnd())) form_->userClose();
      return 0;
    case WM_CONTEXTMENU:
      if (openContextMenu({GET_X_LPARAM(l), GET_Y_LPARAM(l)})) return 0;
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::answerSurroundings(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) clientResized();
      return std::nullopt;
    case WM_GETMINMAXINFO:
      native(message, w, l);
      limitSize(*reinterpret_cast<MINMAXINFO*>(l));
      return 0;
    case WM_DPICHANGED:
      if (presented_) resolutionChanged(HIWORD(w), *reinterpret_cast<const RECT*>(l));
      return 0;
    case WM_SETTINGCHANGE:
      if (presented_ && w == SPI_SETNONCLIENTMETRICS) {
        useResolution(dpi_);
        layOutAll();
      }
      return std::nullopt;
    case WM_SYSCOLORCHANGE:
      // The common controls hear of it from their parent only.
      for (const auto& peer : peers_) SendMessageW(peer->hwnd(), message, w, l);
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

void FormWindow::activated() {
  if (form_ == nullptr || !presented_) return;
  const HWND focus = GetFocus();
  const bool usable = focus != nullptr && IsChild(hwnd(), focus) && IsWindowVisible(focus) &&
                      IsWindowEnabled(focus);
  if (!usable) {
    if (const HWND first = GetNextDlgTabItem(hwnd(), nullptr, FALSE)) moveFocus(first);
  }
  if (form_ != nullptr) form_->Form_Activate();
}

bool FormWindow::openContextMenu(POINT place) {
  if (form_->contextMenu().entries().empty()) return false;
  if (place.x == -1 && place.y == -1) {
    place = {};
    ClientToScreen(GetFocus() != nullptr ? GetFocus() : hwnd(), &place);
  }
  const auto picked = pickFromMenu(ui(), hwnd(), form_->contextMenu(), place);
  // The host runs while the menu is open and may have closed the window.
  if (picked && form_ != nullptr) form_->contextMenu().userPick(*picked);
  return true;
}

void FormWindow::windowGoes() {
  if (form_ != nullptr && onDestroyed) onDestroyed(*form_);
}

}  // namespace pelorin
