#include <algorithm>

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

bool contains(const Place& outer, const Place& inner) {
  return inner.left >= outer.left && inner.top >= outer.top &&
         inner.left + inner.width <= outer.left + outer.width &&
         inner.top + inner.height <= outer.top + outer.height;
}

bool overlap(const Place& one, const Place& other) {
  return one.left < other.left + other.width && other.left < one.left + one.width &&
         one.top < other.top + other.height && other.top < one.top + one.height;
}

// A visible frame laid over a control hides it, from the keyboard as well.
bool coveredBy(const Control& group, const Control& control) {
  return group.kind() == ControlKind::Frame && &group != &control && group.visible() &&
         sameSurface(group, control) && contains(group.place(), control.place());
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
}

// First what comes within reach, then what goes out of it, so that the focus finds a new place.
// Moving the focus runs handlers, which may unload the form.
void FormWindow::followReach(const std::vector<Changed>& changes) {
  for (const bool coming : {true, false}) {
    for (const auto& [peer, changed] : changes) {
      if (form_ == nullptr) return;
      const Control& control = peer->control();
      if ((changed & Peer::bit(Aspect::Enabled)) != 0 && control.enabled() == coming) {
        followEnabled(*peer);
      }
      if (form_ != nullptr && (changed & Peer::bit(Aspect::Visible)) != 0 &&
          control.visible() == coming) {
        followVisible(*peer);
      }
    }
  }
  const bool groups = std::any_of(changes.begin(), changes.end(), [](const Changed& change) {
    return change.first->control().kind() == ControlKind::Frame &&
           (change.second & (layout | reach)) != 0;
  });
  if (!groups) return;
  for (std::size_t i = 0; form_ != nullptr && i < peers_.size(); ++i) followVisible(*peers_[i]);
}

void FormWindow::followEnabled(const Peer& peer) {
  const bool enabled = peer.control().enabled();
  if (!enabled) leave(peer.hwnd());
  EnableWindow(peer.hwnd(), enabled);
}

void FormWindow::followVisible(const Peer& peer) {
  const Control& control = peer.control();
  const bool shown =
      control.visible() && std::none_of(peers_.begin(), peers_.end(), [&](const auto& other) {
        return coveredBy(other->control(), control);
      });
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
  if (IsWindowVisible(peer->hwnd()) && IsWindowEnabled(peer->hwnd())) moveFocus(peer->hwnd());
}

void FormWindow::selectPage(TabControl& tabs, int page) {
  const auto* peer = static_cast<Peer*>(tabs.view());
  if (GetFocus() != peer->hwnd()) moveFocus(peer->hwnd());
  // Leaving a box may have run a handler that unloads the form.
  if (form_ != nullptr) tabs.userSelect(page);
}

}  // namespace pelorin
