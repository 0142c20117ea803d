#include "win32/views/form_window.h"

#include <algorithm>

#include "win32/text/utf16.h"
#include "win32/views/dialog.h"

namespace pelorin {

namespace {

constexpr int firstControlId = 100;

DWORD styleOf(const Form& form) {
  const DWORD fixed = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  return form.resizable() ? fixed | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX : fixed;
}

// A fixed window has the frame of a dialog, without an icon.
DWORD extendedStyleOf(const Form& form) {
  return form.resizable() ? WS_EX_CONTROLPARENT : WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
}

RECT rectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

RECT workAreaAt(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

// Centred over `over` but wholly inside `area` where it fits.
POINT centred(const RECT& over, SIZE size, const RECT& area) {
  const LONG x = (over.left + over.right - size.cx) / 2;
  const LONG y = (over.top + over.bottom - size.cy) / 2;
  return {std::max(area.left, std::min(x, area.right - size.cx)),
          std::max(area.top, std::min(y, area.bottom - size.cy))};
}

}  // namespace

FormWindow::FormWindow(UiThread& ui, Form& form, HWND owner)
    : NativeWindow(ui), form_(&form), name_(form.name()) {
  attach(makeDialog(ui, owner, styleOf(form), extendedStyleOf(form)));
  keepFromScaling(hwnd());
  form.setView(this);
  captionChanged();
  const HANDLE icon =
      LoadImageW(ui.module(), MAKEINTRESOURCEW(1), IMAGE_ICON, 0, 0, LR_DEFAULTSIZE | LR_SHARED);
  if (icon != nullptr) SendMessageW(hwnd(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
}

FormWindow::~FormWindow() {
  retire();
  destroy();
}

FormWindow* FormWindow::of(HWND window) noexcept {
  return dynamic_cast<FormWindow*>(NativeWindow::of(window));
}

FormWindow* FormWindow::around(HWND window) noexcept {
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (FormWindow* found = of(window)) return found;
  }
  return nullptr;
}

void FormWindow::present() {
  if (hwnd() == nullptr || form_ == nullptr) return;
  useResolution(dpiOf(hwnd()));
  buildControls();
  showAtOwner();
}

void FormWindow::buildControls() {
  for (Control* control : form_->controls()) build(*control);
  if (Button* button = form_->defaultButton()) {
    const auto* peer = static_cast<Peer*>(button->view());
    SendMessageW(hwnd(), DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID(peer->hwnd())), 0);
  }
  for (const auto& peer : peers_) followVisible(*peer);
}

// The order of making is the order of tabbing; only a container has to come before its content.
void FormWindow::build(Control& control) {
  if (control.view() != nullptr) return;
  const HWND parent = parentFor(control);
  peers_.push_back(makePeer(*this, control));
  peers_.back()->build(parent, firstControlId + static_cast<int>(peers_.size()));
}

HWND FormWindow::parentFor(const Control& control) {
  Control* container = control.container();
  if (container == nullptr) return hwnd();
  build(*container);
  return static_cast<Peer*>(container->view())->pageWindow(control.page());
}

void FormWindow::showAtOwner() {
  const HWND owner = GetWindow(hwnd(), GW_OWNER);
  const RECT area = workAreaAt(owner != nullptr ? owner : hwnd());
  const bool ownerSeen = owner != nullptr && IsWindowVisible(owner) && !IsIconic(owner);
  SIZE size = outerSize();
  const POINT place = centred(ownerSeen ? rectOf(owner) : area, size, area);
  if (form_->resizable()) {
    size.cx = std::min(size.cx, area.right - area.left);
    size.cy = std::min(size.cy, area.bottom - area.top);
  }
  SetWindowPos(hwnd(), nullptr, place.x, place.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  presented_ = true;
  layOutAll();
  clientResized();
  ui().flush();
  if (form_ == nullptr) return;
  ShowWindow(hwnd(), SW_SHOW);
  UpdateWindow(hwnd());
}

void FormWindow::raise() {
  // A box stands in front of a window that it disables.
  const HWND front = IsWindowEnabled(hwnd()) ? hwnd() : GetLastActivePopup(hwnd());
  if (presented_) ShowWindow(hwnd(), IsIconic(hwnd()) ? SW_RESTORE : SW_SHOW);
  if (IsWindowVisible(front)) SetForegroundWindow(front);
}

void FormWindow::setOwner(HWND owner) {
  if (hwnd() == nullptr) return;
  SetWindowLongPtrW(hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void FormWindow::retire() {
  Form* form = std::exchange(form_, nullptr);
  if (form == nullptr) return;
  if (form->view() == this) form->setView(nullptr);
  for (const auto& peer : peers_) peer->forget();
  dirty_.clear();
  if (hwnd() != nullptr) ShowWindow(hwnd(), SW_HIDE);
}

void FormWindow::captionChanged() {
  if (form_ != nullptr) SetWindowTextW(hwnd(), toWide(form_->caption()).c_str());
}

}  // namespace pelorin
