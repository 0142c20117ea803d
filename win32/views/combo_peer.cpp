// A drop-down list's native twin.
#include <algorithm>
#include <utility>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"
#include "win32/views/private_messages.h"

namespace pelorin {

namespace {

constexpr int rowsInSight = 12;
// Measuring more rows than this would be felt when the list drops down.
constexpr int rowsToMeasure = 2000;

class ComboPeer final : public Peer {
 public:
  ComboPeer(FormWindow& window, ComboBox& combo) : Peer(window, combo), combo_(combo) {}

  // The height that the native control is given includes its list.
  RECT adjusted(const RECT& place) const override {
    RECT rect = place;
    rect.bottom = rect.top + (rowsInSight + 2) * (window().fonts().lineHeight() + 2);
    return rect;
  }

  void onCommand(UINT code) override {
    if (code == CBN_SELCHANGE) changed();
    if (code == CBN_DROPDOWN) dropped();
    if (code == CBN_SELENDOK) chosen_ = true;
    if (code == CBN_CLOSEUP) PostMessageW(hwnd(), choiceMessage, 0, 0);
  }

 protected:
  NativeKind nativeKind() const override {
    return {L"ComboBox", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS};
  }
  void fill() override {
    showRows();
    showCurrent();
  }
  void apply(Aspects changed) override {
    if ((changed & bit(Aspect::Items)) != 0) showRows();
    if ((changed & (bit(Aspect::Items) | bit(Aspect::Selection))) != 0) showCurrent();
  }

  // A wheel turned over a closed list would change the value without the operator noticing.
  LRESULT handle(UINT message, WPARAM w, LPARAM l) override {
    const bool wheel = message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
    if (wheel && send(CB_GETDROPPEDSTATE) == 0) return 0;
    if (message == choiceMessage) return choiceEnded();
    return native(message, w, l);
  }

  // The model may refuse or answer by another choice; the native control then follows it again.
  void runActs(unsigned) override {
    const auto picked = static_cast<int>(send(CB_GETCURSEL));
    markPending(Aspect::Selection);
    if (picked >= 0 && picked < combo_.listCount()) combo_.userSelect(picked);
  }

 private:
  void dropped() {
    changed_ = false;
    chosen_ = false;
    widenList();
  }
  void changed() {
    changed_ = true;
    act(1);
  }
  // Not every system tells of a change when the current row is chosen again, and the end of a
  // choice can come before its change. So this is asked when both have come.
  LRESULT choiceEnded() {
    if (std::exchange(chosen_, false) && !changed_) act(1);
    return 0;
  }

  void showRows() const {
    const RedrawHeld held(hwnd());
    send(CB_RESETCONTENT);
    constexpr LPARAM bytesPerRow = 64;
    send(CB_INITSTORAGE, static_cast<WPARAM>(combo_.listCount()), combo_.listCount() * bytesPerRow);
    for (int i = 0; i < combo_.listCount(); ++i) {
      sendText(CB_ADDSTRING, 0, toWide(combo_.row(i).text).c_str());
    }
  }

  void showCurrent() const {
    if (send(CB_GETCURSEL) != combo_.listIndex()) {
      send(CB_SETCURSEL, static_cast<WPARAM>(combo_.listIndex()));
    }
  }

  void widenList() const {
    int widest = 0;
    for (int i = 0; i < std::min(combo_.listCount(), rowsToMeasure); ++i) {
      const std::wstring text = toWide(combo_.row(i).text);
      widest = std::max(widest, window().fonts().textWidth(text, combo_.bold(), false));
    }
    widest += GetSystemMetrics(SM_CXVSCROLL) + window().pixels(150);
    send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(widest));
  }

  ComboBox& combo_;
  // Since the list dropped down: a change of the row has been told; a row was chosen.
  bool changed_ = false;
  bool chosen_ = false;
};

}  // namespace

std::unique_ptr<Peer> makeComboPeer(FormWindow& window, ComboBox& combo) {
  return std::make_unique<ComboPeer>(window, combo);
}

}  // namespace pelorin
