// A list's native twin, with its check marks.
#include "win32/text/utf16.h"
#include "win32/views/check_mark.h"
#include "win32/views/form_window.h"
#include "win32/views/handles.h"
#include "win32/views/peers.h"

namespace pelorin {

namespace {

class ListBoxPeer final : public Peer {
 public:
  ListBoxPeer(FormWindow& window, ListBox& list) : Peer(window, list), list_(list) {}

  void onCommand(UINT code) override {
    if (code == LBN_SELCHANGE) act(1);
  }

  void resolutionChanged() override {
    Peer::resolutionChanged();
    setRowHeight();
  }

  bool onDraw(const DRAWITEMSTRUCT& item) override {
    if (item.itemID >= static_cast<UINT>(list_.listCount())) return true;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_WINDOW));
    const RECT text = drawMark(item);
    drawText(item, text);
    const bool caret = (item.itemState & ODS_FOCUS) != 0;
    if (caret && (item.itemState & ODS_NOFOCUSRECT) == 0) DrawFocusRect(item.hDC, &text);
    return true;
  }

 protected:
  // One click toggles one row, and so does Space; texts are kept for accessibility tools.
  NativeKind nativeKind() const override {
    return {L"ListBox",
            WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_MULTIPLESEL | LBS_OWNERDRAWFIXED |
                LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT,
            WS_EX_CLIENTEDGE};
  }
  void fill() override {
    setRowHeight();
    showRows();
    showMarks();
  }
  void apply(Aspects changed) override {
    if ((changed & bit(Aspect::Items)) != 0) showRows();
    if ((changed & (bit(Aspect::Items) | bit(Aspect::Checks))) != 0) showMarks();
  }

  // The second of two quick clicks is a click like any other. Not every system reports the row that
  // Space toggled.
  LRESULT handle(UINT message, WPARAM w, LPARAM l) override {
    const LRESULT result = native(message == WM_LBUTTONDBLCLK ? WM_LBUTTONDOWN : message, w, l);
    if (message == WM_KEYDOWN && w == VK_SPACE) act(1);
    return result;
  }

  // The native selection says what the operator wants; the model decides.
  void runActs(unsigned) override {
    markPending(Aspect::Checks);
    for (int i = 0; i < list_.listCount(); ++i) {
      if (nativeMark(i) == list_.selected(i)) continue;
      list_.userToggle(i);
      return;
    }
  }

 private:
  bool nativeMark(int row) const { return send(LB_GETSEL, static_cast<WPARAM>(row)) > 0; }

  void setRowHeight() const {
    send(LB_SETITEMHEIGHT, 0, window().fonts().lineHeight() + window().pixels(45));
  }

  void showRows() const {
    const RedrawHeld held(hwnd());
    send(LB_RESETCONTENT);
    for (int i = 0; i < list_.listCount(); ++i) {
      sendText(LB_ADDSTRING, 0, toWide(list_.row(i).text).c_str());
    }
  }

  void showMarks() const {
    for (int i = 0; i < list_.listCount(); ++i) {
      if (nativeMark(i) != list_.selected(i)) send(LB_SETSEL, list_.selected(i) ? TRUE : FALSE, i);
    }
  }

  // Returns what is left of the row for the text.
  RECT drawMark(const DRAWITEMSTRUCT& item) const {
    const int size = window().pixels(195);
    const int gap = window().pixels(45);
    const RECT& row = item.rcItem;
    const LONG top = (row.top + row.bottom - size) / 2;
    const RECT mark{row.left + gap, top, row.left + gap + size, top + size};
    drawCheckMark(hwnd(), item.hDC, mark, (item.itemState & ODS_SELECTED) != 0, list_.enabled());
    return {mark.right + gap, row.top, row.right, row.bottom};
  }

  void drawText(const DRAWITEMSTRUCT& item, RECT area) const {
    const std::wstring text = toWide(list_.row(static_cast<int>(item.itemID)).text);
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(list_.enabled() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    area.left += window().pixels(30);
    DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  }

  ListBox& list_;
};

}  // namespace

std::unique_ptr<Peer> makeListBoxPeer(FormWindow& window, ListBox& list) {
  return std::make_unique<ListBoxPeer>(window, list);
}

}  // namespace pelorin
