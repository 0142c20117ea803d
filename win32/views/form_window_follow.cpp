// How a form's window follows what changes in its models.
#include "win32/views/form_window.h"

namespace pelorin {

namespace {

constexpr Peer::Aspects reach = Peer::bit(Aspect::Enabled) | Peer::bit(Aspect::Visible);
// A label or box also takes the room that its text needs.
constexpr Peer::Aspects layout =
    Peer::bit(Aspect::Place) | Peer::bit(Aspect::Text) | Peer::bit(Aspect::Bold);

bool sameSurface(const Control& one, const Control& other) {
  return one.container() == other.container() && one.page() == other.page();
}

bool overlap(const Place& one, const Place& other) {
  return one.left < rightOf(other) && other.left < rightOf(one) && one.top < bottomOf(other) &&
         other.top < bottomOf(one);
}

bool takesInput(const Control& control) {
  return control.enabled() && !control.covered();
}

}  // namespace

void FormWindow::markDirty(Peer& peer) {
  dirty_.push_back(&peer);
  ui().requestFlush();
}

std::vector<FormWindow::Changed> FormWindow::takeChanges() {
  std::vector<Changed> changes;
  for (Peer* peer : std::exchange(dirty_, {})) {
    const Peer::Aspects changed = peer->takePending();
    if (peer->hwnd() != nullptr && changed != 0) changes.emplace_back(peer, changed);
  }
  return changes;
}

void FormWindow::flush() {
  if (form_ == nullptr || dirty_.empty()) return;
  const std::vector<Changed> changes = takeChanges();
  std::vector<Peer*> moved;
  for (const auto& [peer, changed] : changes) {
    peer->applyContent(changed);
    if ((changed & layout) != 0) moved.push_back(peer);
  }
  layOut(moved);
  followReach(changes);
  if (std::exchange(focusLate_, false)) focusMoved();
}

// First what comes within reach, then what goes out of it, so that the focus finds a new place.
// Moving the focus runs handlers, which may unload the form.
void FormWindow::followReach(const std::vector<Changed>& changes) {
  for (const bool coming : {true, false}) {
    for (const auto& [peer, changed] : changes) {
      if (form_ == nullptr) return;
      const Control& control = peer->control();
      if ((changed & Peer::bit(Aspect::Enabled)) != 0 && takesInput(control) == coming) {
        followEnabled(*peer);
      }
      if (form_ != nullptr && (changed & Peer::bit(Aspect::Visible)) != 0 &&
          control.visible() == coming) {
        followVisible(*peer);
      }
    }
  }
  for (const auto& [peer, changed] : changes) {
    if (form_ == nullptr) return;
    const Control& control = peer->control();
    const bool frame = control.kind() == ControlKind::Frame && control.visible();
    if (frame && (changed & (layout | reach)) != 0) followStacking(*peer);
  }
}

void FormWindow::followEnabled(const Peer& peer) {
  const bool enabled = takesInput(peer.control());
  if (!enabled) leave(peer.hwnd());
  EnableWindow(peer.hwnd(), enabled);
}

void FormWindow::followVisible(const Peer& peer) {
  const Control& control = peer.control();
  const bool shown = control.visible();
  if (shown && control.kind() == ControlKind::Frame) followStacking(peer);
  const bool isShown = (GetWindowLongW(peer.hwnd(), GWL_STYLE) & WS_VISIBLE) != 0;
  if (shown == isShown) return;
  if (!shown) leave(peer.hwnd());
  ShowWindow(peer.hwnd(), shown ? SW_SHOWNA : SW_HIDE);
}

// A frame stands in front of the controls that it overlaps and else keeps its place in the order.
void FormWindow::followStacking(const Peer& group) {
  for (const auto& other : peers_) {
    const Control& control = other->control();
    if (&control == &group.control()) return;
    if (!sameSurface(control, group.control()) || control.kind() == ControlKind::Frame ||
        !overlap(control.place(), group.control().place())) {
      continue;
    }
    const HWND before = GetWindow(other->hwnd(), GW_HWNDPREV);
    if (before == group.hwnd()) return;
    SetWindowPos(group.hwnd(), before != nullptr ? before : HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return;
  }
}

// The focus must not stay on, or inside, what can no longer be reached.
void FormWindow::leave(HWND goingAway) {
  HWND next = GetFocus();
  if (next != goingAway && !IsChild(goingAway, next)) return;
  const HWND first = next;
  do {
    next = GetNextDlgTabItem(hwnd(), next, FALSE);
  } while (next != nullptr && next != first && (next == goingAway || IsChild(goingAway, next)));
  if (next != nullptr && next != first) {
    moveFocus(next);
  } else {
    SetFocus(hwnd());
  }
}

void FormWindow::moveFocus(HWND control) const {
  SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void FormWindow::focusArrived(Control& control) {
  if (form_ != nullptr) form_->userFocus(&control);
}

void FormWindow::focusMoved() {
  if (form_ == nullptr || form_->focused() == nullptr || GetActiveWindow() != hwnd()) return;
  const auto* peer = static_cast<Peer*>(form_->focused()->view());
  if (peer == nullptr || GetFocus() == peer->hwnd()) return;
  if (IsWindowVisible(peer->hwnd()) && IsWindowEnabled(peer->hwnd())) {
    moveFocus(peer->hwnd());
  } else {
    // A control that the same handler has just brought within reach.
    focusLate_ = form_->focused()->reachable();
  }
}

void FormWindow::selectPage(TabControl& tabs, int page) {
  const auto* peer = static_cast<Peer*>(tabs.view());
  if (GetFocus() != peer->hwnd()) moveFocus(peer->hwnd());
  // Leaving a box may have run a handler that unloads the form.
  if (form_ != nullptr) tabs.userSelect(page);
}

}  // namespace pelorin
