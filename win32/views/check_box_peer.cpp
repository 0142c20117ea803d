// A check box's native twin.
#include <algorithm>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"

namespace pelorin {

namespace {

class CheckBoxPeer final : public Peer {
 public:
  CheckBoxPeer(FormWindow& window, CheckBox& box) : Peer(window, box), box_(box) {}

  RECT adjusted(const RECT& place) const override {
    const FontSet& fonts = window().fonts();
    RECT rect = place;
    rect.bottom = std::max<LONG>(rect.bottom, rect.top + fonts.lineHeight());
    const int mark = window().pixels(300);
    const int needed = mark + fonts.textWidth(toWide(box_.text()), box_.bold(), true);
    if (needed > rect.right - rect.left) {
      rect.right = std::min<LONG>(rect.left + needed, window().rightLimit(box_, place));
    }
    return rect;
  }

  void onCommand(UINT code) override {
    if (code == BN_CLICKED) act(1);
  }

 protected:
  // The model decides whether the mark changes, so the button does not change it by itself.
  NativeKind nativeKind() const override { return {L"Button", WS_TABSTOP | BS_CHECKBOX}; }
  void fill() override { showMark(); }
  void apply(Aspects changed) override {
    if ((changed & bit(Aspect::Checks)) != 0) showMark();
  }
  void runActs(unsigned) override { box_.userToggle(); }

 private:
  void showMark() const { send(BM_SETCHECK, box_.checked() ? BST_CHECKED : BST_UNCHECKED); }

  CheckBox& box_;
};

}  // namespace

std::unique_ptr<Peer> makeCheckBoxPeer(FormWindow& window, CheckBox& box) {
  return std::make_unique<CheckBoxPeer>(window, box);
}

}  // namespace pelorin
