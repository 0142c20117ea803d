// A label's native twin.
#include <algorithm>

#include "win32/text/utf16.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"
#include "win32/views/shortened_text.h"

namespace pelorin {

namespace {

class LabelPeer final : public Peer {
 public:
  LabelPeer(FormWindow& window, Label& label) : Peer(window, label), label_(label) {}

  // A text longer than the design expected takes the room that is free beside it.
  RECT adjusted(const RECT& place) const override {
    const int line = window().fonts().lineHeight();
    RECT rect = place;
    rect.bottom = std::max<LONG>(rect.bottom, rect.top + line);
    const bool oneLine = rect.bottom - rect.top < 2 * line;
    if (!oneLine) return rect;
    const int needed = widthOf(toWide(label_.text()));
    if (needed > rect.right - rect.left) {
      rect.right = std::min<LONG>(rect.left + needed, window().rightLimit(label_, place));
    }
    return rect;
  }

  void onCommand(UINT code) override {
    if (code == STN_CLICKED || code == STN_DBLCLK) act(1);
  }

  // The control's own ellipsis would hide the end, which is what changed last.
  bool onDraw(const DRAWITEMSTRUCT& item) override {
    const Selected font(item.hDC, window().fonts().font(label_.bold()));
    auto* const background = reinterpret_cast<HBRUSH>(
        SendMessageW(GetParent(hwnd()), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(item.hDC),
                     reinterpret_cast<LPARAM>(hwnd())));
    FillRect(item.hDC, &item.rcItem, background);
    if ((item.itemState & ODS_DISABLED) != 0) SetTextColor(item.hDC, GetSysColor(COLOR_GRAYTEXT));
    RECT area = item.rcItem;
    const std::wstring shown =
        shortenedInMiddle(toWide(label_.text()), static_cast<int>(area.right - area.left),
                          [this](const std::wstring& text) { return widthOf(text); });
    DrawTextW(item.hDC, shown.c_str(), static_cast<int>(shown.size()), &area,
              DT_LEFT | DT_SINGLELINE | DT_NOPREFIX);
    return true;
  }

 protected:
  // A label that carries data shows "&" as it stands, and both of its ends where it is too long.
  NativeKind nativeKind() const override {
    const DWORD text = label_.useMnemonic() ? DWORD{SS_LEFT} : DWORD{SS_OWNERDRAW | SS_NOPREFIX};
    return {L"Static", label_.onClick ? text | SS_NOTIFY : text};
  }
  void apply(Aspects) override { InvalidateRect(hwnd(), nullptr, TRUE); }
  void laidOut() override { InvalidateRect(hwnd(), nullptr, TRUE); }
  void runActs(unsigned) override { label_.userClick(); }

 private:
  int widthOf(const std::wstring& text) const {
    return window().fonts().textWidth(text, label_.bold(), label_.useMnemonic());
  }

  Label& label_;
};

}  // namespace

std::unique_ptr<Peer> makeLabelPeer(FormWindow& window, Label& label) {
  return std::make_unique<LabelPeer>(window, label);
}

}  // namespace pelorin
