// Places of native controls: from twips of the design to pixels of the window.
#include <algorithm>

#include "win32/views/form_window.h"

namespace pelorin {

namespace {

LONG widthOf(const RECT& rect) {
  return rect.right - rect.left;
}

LONG heightOf(const RECT& rect) {
  return rect.bottom - rect.top;
}

RECT clientOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return client;
}

// Moves several children of one window in a single step, so that they are painted once.
class Moves {
 public:
  Moves(HWND parent, std::size_t count)
      : parent_(parent), batch_(BeginDeferWindowPos(static_cast<int>(count))) {}
  Moves(const Moves&) = delete;
  Moves& operator=(const Moves&) = delete;
  ~Moves() {
    if (batch_ != nullptr) EndDeferWindowPos(batch_);
  }

  void move(HWND window, const RECT& to) {
    constexpr UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
    if (batch_ != nullptr && GetParent(window) == parent_) {
      batch_ = DeferWindowPos(batch_, window, nullptr, to.left, to.top, widthOf(to), heightOf(to),
                              flags);
    } else {
      SetWindowPos(window, nullptr, to.left, to.top, widthOf(to), heightOf(to), flags);
    }
  }

 private:
  HWND parent_;
  HDWP batch_;
};

}  // namespace

// Both edges are scaled, so that neighbours that touch in twips touch in pixels.
RECT FormWindow::placeOf(const Control& control) const {
  const Place& place = control.place();
  RECT rect{pixels(place.left), pixels(place.top), pixels(rightOf(place)), pixels(bottomOf(place))};
  if (const Control* container = control.container()) {
    const POINT origin = static_cast<Peer*>(container->view())->pageOrigin();
    OffsetRect(&rect, -origin.x, -origin.y);
  }
  return rect;
}

int FormWindow::rightLimit(const Control& control, const RECT& place) const {
  const Peer* self = static_cast<Peer*>(control.view());
  const LONG gap = pixels(60);
  LONG limit = clientOf(GetParent(self->hwnd())).right - gap;
  for (const auto& peer : peers_) {
    const Control& other = peer->control();
    if (&other == &control || other.container() != control.container() ||
        other.page() != control.page() || other.kind() == ControlKind::Frame) {
      continue;
    }
    const RECT rect = placeOf(other);
    const bool sameBand = rect.top < place.bottom && place.top < rect.bottom;
    if (sameBand && rect.left > place.left) limit = std::min(limit, rect.left - gap);
  }
  return static_cast<int>(std::max(limit, place.right));
}

void FormWindow::layOut(const std::vector<Peer*>& peers) {
  if (peers.empty() || !presented_) return;
  {
    Moves moves(hwnd(), peers.size());
    for (Peer* peer : peers) moves.move(peer->hwnd(), peer->adjusted(placeOf(peer->control())));
  }
  for (Peer* peer : peers) peer->laidOut();
}

// Containers first: where a page lies decides where its controls lie.
void FormWindow::layOutAll() {
  std::vector<Peer*> containers;
  std::vector<Peer*> others;
  for (const auto& peer : peers_) {
    const bool container = peer->control().kind() == ControlKind::TabControl;
    (container ? containers : others).push_back(peer.get());
  }
  layOut(containers);
  layOut(others);
}

SIZE FormWindow::clientPixels() const {
  return {pixels(form_->client().width), pixels(form_->client().height)};
}

SIZE FormWindow::outerSize() const {
  const SIZE client = clientPixels();
  const RECT outer =
      outerRect({0, 0, client.cx, client.cy}, static_cast<DWORD>(GetWindowLongW(hwnd(), GWL_STYLE)),
                static_cast<DWORD>(GetWindowLongW(hwnd(), GWL_EXSTYLE)), dpi_);
  return {widthOf(outer), heightOf(outer)};
}

// The old fonts live until every control has its new one.
void FormWindow::useResolution(int dpi) {
  dpi_ = dpi;
  const auto before = std::exchange(fonts_, std::make_unique<FontSet>(dpi));
  SendMessageW(hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(fonts_->font(false)), FALSE);
  for (const auto& peer : peers_) {
    if (peer->hwnd() != nullptr) peer->resolutionChanged();
  }
}

void FormWindow::resolutionChanged(int dpi, const RECT& suggested) {
  useResolution(dpi);
  const SIZE fixed = outerSize();
  const bool resizable = form_->resizable();
  SetWindowPos(hwnd(), nullptr, suggested.left, suggested.top,
               resizable ? widthOf(suggested) : fixed.cx,
               resizable ? heightOf(suggested) : fixed.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  layOutAll();
  InvalidateRect(hwnd(), nullptr, TRUE);
}

// What the size is by the model is no news: rounding must not make the form lay itself out again.
void FormWindow::clientResized() {
  if (form_ == nullptr || !presented_ || !form_->resizable() || IsIconic(hwnd())) return;
  const RECT client = clientOf(hwnd());
  const SIZE known = clientPixels();
  if (client.right == known.cx && client.bottom == known.cy) return;
  form_->userResize({pixelsToTwips(client.right, dpi_), pixelsToTwips(client.bottom, dpi_)});
}

void FormWindow::limitSize(MINMAXINFO& limits) const {
  if (form_ == nullptr || !form_->resizable()) return;
  limits.ptMinTrackSize.x =
      std::max<LONG>(limits.ptMinTrackSize.x, pixels(form_->smallest().width));
  limits.ptMinTrackSize.y =
      std::max<LONG>(limits.ptMinTrackSize.y, pixels(form_->smallest().height));
}

}  // namespace pelorin
