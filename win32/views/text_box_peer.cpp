// A text box's native twin.
#include <utility>

#include "base/utf.h"
#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"

namespace pelorin {

namespace {

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

class TextBoxPeer final : public Peer {
 public:
  TextBoxPeer(FormWindow& window, TextBox& box) : Peer(window, box), box_(box) {}

  // One line stands at the top of the box: the height is that of the line, not of the design's
  // font.
  RECT adjusted(const RECT& place) const override {
    const int borders = 2 * GetSystemMetrics(SM_CYEDGE) + 2;
    RECT rect = place;
    rect.bottom = rect.top + window().fonts().lineHeight() + borders;
    return rect;
  }

  void onCommand(UINT code) override {
    if (code == EN_CHANGE && !applying() && live()) box_.userText(toUtf8(textOf(hwnd())));
  }

 protected:
  NativeKind nativeKind() const override {
    return {L"Edit", WS_TABSTOP | ES_AUTOHSCROLL | ES_LEFT, WS_EX_CLIENTEDGE};
  }

  // Characters are offered to the model one by one; pasted text is not.
  LRESULT handle(UINT message, WPARAM w, LPARAM l) override {
    if (message == WM_CHAR && live()) return character(static_cast<wchar_t>(w), l);
    return native(message, w, l);
  }

 private:
  // A character beyond 16 bits arrives in two halves: it is judged as one, and kept as one, with
  // the second.
  LRESULT character(wchar_t unit, LPARAM key) {
    if (isHighHalf(unit)) {
      high_ = unit;
      return 0;
    }
    const wchar_t high = std::exchange(high_, L'\0');
    const bool pair = isLowHalf(unit) && high != 0;
    if (!box_.userKey(pair ? joinedHalves(high, unit) : char32_t{unit})) return 0;
    if (pair) native(WM_CHAR, high, key);
    return native(WM_CHAR, unit, key);
  }

  TextBox& box_;
  wchar_t high_ = 0;
};

}  // namespace

std::unique_ptr<Peer> makeTextBoxPeer(FormWindow& window, TextBox& box) {
  return std::make_unique<TextBoxPeer>(window, box);
}

}  // namespace pelorin
