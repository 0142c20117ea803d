// The native side of one control: a window of a standard class that mirrors the model and tells it
// what the operator does. Setting something from the model never reports an act of the operator.
#pragma once

#include <memory>

#include "controls/control.h"
#include "win32/views/native_window.h"
#include "win32/views/windows_api.h"

namespace pelorin {

class FormWindow;

class Peer : public NativeWindow, public ControlView {
 public:
  Peer(FormWindow& window, Control& control);

  Control& control() const noexcept { return control_; }
  // The window's peer, or null.
  static Peer* of(HWND window) noexcept;

  // Makes the native control from the model.
  void build(HWND parent, int id);
  // The model may be gone afterwards.
  virtual void forget() noexcept;

  void modelChanged(const Change& change) final;

  // A set of aspects.
  using Aspects = unsigned;
  static constexpr Aspects bit(Aspect aspect) noexcept {
    return 1U << static_cast<unsigned>(aspect);
  }
  // Brings content (everything but place, enabled and visible) up to date.
  void applyContent(Aspects changed);
  // What changed since the last time.
  Aspects takePending() noexcept;

  // Where the control stands, from the place that the model gives, in the parent's pixels.
  virtual RECT adjusted(const RECT& place) const { return place; }
  // After the place, the font or the resolution changed.
  virtual void laidOut() {}
  // The font and everything that depends on the resolution.
  virtual void resolutionChanged();

  // The window that holds the controls of a page, for containers; and the part of this control
  // that it covers, relative to the control's corner.
  virtual HWND pageWindow(int /*page*/) const { return nullptr; }
  virtual POINT pageOrigin() const { return {}; }

  // Messages that the control sent to its parent.
  virtual void onCommand(UINT /*code*/) {}
  virtual LRESULT onNotify(NMHDR& /*header*/) { return 0; }
  virtual bool onDraw(const DRAWITEMSTRUCT& /*item*/) { return false; }

 protected:
  struct NativeKind {
    const wchar_t* windowClass = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };
  virtual NativeKind nativeKind() const = 0;
  // Called with the window just made; the model is complete.
  virtual void fill() {}
  virtual void apply(Aspects /*changed*/) {}
  // What the operator did, once the control itself has finished with the message. `acts` are the
  // bits given to act().
  virtual void runActs(unsigned /*acts*/) {}
  void act(unsigned acts);
  static constexpr unsigned focusAct = 1U << 31;

  std::string designName() const override { return control_.name(); }
  LRESULT onMessage(UINT message, WPARAM w, LPARAM l) final;
  virtual LRESULT handle(UINT message, WPARAM w, LPARAM l) { return native(message, w, l); }

  FormWindow& window() const noexcept { return window_; }
  bool applying() const noexcept { return applying_; }
  bool live() const noexcept { return live_; }
  void markPending(Aspect aspect);
  LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const noexcept {
    return SendMessageW(hwnd(), message, w, l);
  }
  LRESULT sendText(UINT message, WPARAM w, const wchar_t* text) const noexcept {
    return SendMessageW(hwnd(), message, w, reinterpret_cast<LPARAM>(text));
  }

  // While it lives, nothing counts as an act of the operator.
  class Applying {
   public:
    explicit Applying(Peer& peer) noexcept : peer_(peer), before_(peer.applying_) {
      peer_.applying_ = true;
    }
    Applying(const Applying&) = delete;
    Applying& operator=(const Applying&) = delete;
    ~Applying() { peer_.applying_ = before_; }

   private:
    Peer& peer_;
    bool before_;
  };

 private:
  void finishActs();

  FormWindow& window_;
  Control& control_;
  Aspects pending_ = 0;
  unsigned acts_ = 0;
  int nesting_ = 0;  // messages of this control that are being handled
  bool applying_ = false;
  bool live_ = true;
};

// Holds painting back while many rows change, then paints once.
class RedrawHeld {
 public:
  explicit RedrawHeld(HWND window) noexcept : window_(window) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  }
  RedrawHeld(const RedrawHeld&) = delete;
  RedrawHeld& operator=(const RedrawHeld&) = delete;
  ~RedrawHeld() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }

 private:
  HWND window_;
};

std::unique_ptr<Peer> makePeer(FormWindow& window, Control& control);

}  // namespace pelorin
