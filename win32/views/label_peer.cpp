#include <algorithm>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"

namespace pelorin {

namespace {

class LabelPeer final : public Peer {
 public:
  LabelPeer(FormWindow& window, Label& label) : Peer(window, label), label_(label) {}

  // A caption designed for another font is not cut off: it takes the room that is free beside it.
  RECT adjusted(const RECT& place) const override {
    const int line = window().fonts().lineHeight();
    RECT rect = place;
    rect.bottom = std::max<LONG>(rect.bottom, rect.top + line);
    const bool oneLine = rect.bottom - rect.top < 2 * line;
    if (!oneLine || !label_.useMnemonic()) return rect;
    const int needed =
        window().fonts().textWidth(toWide(label_.text()), label_.bold(), label_.useMnemonic());
    if (needed > rect.right - rect.left) {
      rect.right = std::min<LONG>(rect.left + needed, window().rightLimit(label_, place));
    }
    return rect;
  }

  void onCommand(UINT code) override {
    if (code == STN_CLICKED || code == STN_DBLCLK) act(1);
  }

 protected:
  // A label that carries data shows "&" as it stands and an ellipsis where it is too long.
  NativeKind nativeKind() const override {
    const DWORD text =
        label_.useMnemonic() ? DWORD{SS_LEFT} : DWORD{SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS};
    return {L"Static", label_.onClick ? text | SS_NOTIFY : text};
  }
  void laidOut() override { InvalidateRect(hwnd(), nullptr, TRUE); }
  void runActs(unsigned) override { label_.userClick(); }

 private:
  Label& label_;
};

}  // namespace

std::unique_ptr<Peer> makeLabelPeer(FormWindow& window, Label& label) {
  return std::make_unique<LabelPeer>(window, label);
}

}  // namespace pelorin
