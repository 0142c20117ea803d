#include "win32/views/peer.h"

#include <utility>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"

namespace pelorin {

namespace {

class Nested {
 public:
  explicit Nested(int& level) noexcept : level_(level) { ++level_; }
  Nested(const Nested&) = delete;
  Nested& operator=(const Nested&) = delete;
  ~Nested() { --level_; }

 private:
  int& level_;
};

}  // namespace

Peer::Peer(FormWindow& window, Control& control)
    : NativeWindow(window.uiThread()), window_(window), control_(control) {}

Peer* Peer::of(HWND window) noexcept {
  return dynamic_cast<Peer*>(NativeWindow::of(window));
}

void Peer::build(HWND parent, int id) {
  const NativeKind kind = nativeKind();
  const Applying quiet(*this);
  DWORD style = kind.style | WS_CHILD | WS_CLIPSIBLINGS;
  if (!control_.enabled() || control_.covered()) style |= WS_DISABLED;
  const ActivationContext::Scope styles(ui().styles());
  attach(CreateWindowExW(
      kind.extendedStyle, kind.windowClass, toWide(control_.text()).c_str(), style, 0, 0, 0, 0,
      parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ui().module(), nullptr));
  send(WM_SETFONT, reinterpret_cast<WPARAM>(window_.fonts().font(control_.bold())));
  fill();
  control_.setView(this);
}

void Peer::forget() noexcept {
  if (!std::exchange(live_, false)) return;
  if (control_.view() == this) control_.setView(nullptr);
  pending_ = 0;
  acts_ = 0;
}

void Peer::modelChanged(const Change& change) {
  markPending(change.aspect);
}

void Peer::markPending(Aspect aspect) {
  if (!live_) return;
  if (pending_ == 0) window_.markDirty(*this);
  pending_ |= bit(aspect);
}

Peer::Aspects Peer::takePending() noexcept {
  return std::exchange(pending_, 0U);
}

void Peer::applyContent(Aspects changed) {
  const Applying quiet(*this);
  if ((changed & bit(Aspect::Bold)) != 0) {
    send(WM_SETFONT, reinterpret_cast<WPARAM>(window_.fonts().font(control_.bold())), TRUE);
  }
  if ((changed & bit(Aspect::Text)) != 0) {
    SetWindowTextW(hwnd(), toWide(control_.text()).c_str());
  }
  apply(changed);
}

void Peer::resolutionChanged() {
  const Applying quiet(*this);
  send(WM_SETFONT, reinterpret_cast<WPARAM>(window_.fonts().font(control_.bold())), TRUE);
}

LRESULT Peer::onMessage(UINT message, WPARAM w, LPARAM l) {
  LRESULT result = 0;
  {
    const Nested nested(nesting_);
    result = handle(message, w, l);
    if (message == WM_SETFOCUS) act(focusAct);
  }
  finishActs();
  return result;
}

void Peer::act(unsigned acts) {
  if (!live_) return;
  // The focus has arrived, whoever moved it.
  acts_ |= applying_ ? acts & focusAct : acts;
  finishActs();
}

void Peer::finishActs() {
  if (nesting_ > 0 || acts_ == 0) return;
  const unsigned acts = std::exchange(acts_, 0U);
  if ((acts & focusAct) != 0) window_.focusArrived(control_);
  if (live_ && (acts & ~focusAct) != 0) runActs(acts & ~focusAct);
}

}  // namespace pelorin
