// A tab control's native twin.

#include <vector>

#include "win32/text/utf16.h"
#include "win32/views/dialog.h"
#include "win32/views/form_window.h"
#include "win32/views/peers.h"
#include "win32/views/reflect.h"
#include "win32/views/windows_api.h"

namespace pelorin {

namespace {

// The surface that holds the controls of one page. It has no name: operators and tests know the
// tab control and the controls.
class PageWindow final : public NativeWindow {
 public:
  PageWindow(UiThread& ui, HWND parent) : NativeWindow(ui) {
    const ActivationContext::Scope styles(ui.styles());
    attach(makeDialog(ui, parent, DS_CONTROL | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                      WS_EX_CONTROLPARENT));
    EnableThemeDialogTexture(hwnd(), ETDT_ENABLETAB);
  }

 protected:
  std::string designName() const override { return {}; }
  LRESULT onMessage(UINT message, WPARAM w, LPARAM l) override {
    const auto answer = reflect(message, w, l);
    return answer ? *answer : native(message, w, l);
  }
};

class TabPeer final : public Peer {
 public:
  TabPeer(FormWindow& window, TabControl& tabs) : Peer(window, tabs), tabs_(tabs) {}

  HWND pageWindow(int page) const override {
    return pages_.at(static_cast<std::size_t>(page))->hwnd();
  }

  POINT pageOrigin() const override {
    const RECT area = pageArea();
    return {area.left, area.top};
  }

  // The pages lie beside the tab control in the order of windows, so that tabbing reaches the tabs
  // first; the tab control is cut out where they are, so that it never paints over them.
  void laidOut() override {
    const RECT area = pageArea();
    RECT whole{};
    GetClientRect(hwnd(), &whole);
    RECT onParent = area;
    MapWindowPoints(hwnd(), GetParent(hwnd()), reinterpret_cast<POINT*>(&onParent), 2);
    for (const auto& page : pages_) {
      SetWindowPos(page->hwnd(), nullptr, onParent.left, onParent.top, area.right - area.left,
                   area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    const HRGN region = CreateRectRgnIndirect(&whole);
    const HRGN hole = CreateRectRgnIndirect(&area);
    CombineRgn(region, region, hole, RGN_DIFF);
    DeleteObject(hole);
    SetWindowRgn(hwnd(), region, TRUE);
  }

  LRESULT onNotify(NMHDR& header) override {
    if (header.code == TCN_SELCHANGE) act(1);
    return 0;
  }

 protected:
  NativeKind nativeKind() const override { return {WC_TABCONTROLW, WS_TABSTOP | TCS_TABS}; }

  void fill() override {
    int index = 0;
    for (const std::string& caption : tabs_.captions()) {
      std::wstring text = toWide(caption);
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text.data();
      send(TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
      pages_.push_back(std::make_unique<PageWindow>(ui(), GetParent(hwnd())));
    }
    showPage();
  }

  void apply(Aspects changed) override {
    constexpr Aspects concerned =
        bit(Aspect::Selection) | bit(Aspect::Visible) | bit(Aspect::Enabled);
    if ((changed & concerned) != 0) showPage();
  }

  void runActs(unsigned) override {
    const auto picked = static_cast<int>(send(TCM_GETCURSEL));
    markPending(Aspect::Selection);
    if (picked >= 0) window().selectPage(tabs_, picked);
  }

 private:
  RECT pageArea() const {
    RECT area{};
    GetClientRect(hwnd(), &area);
    send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
  }

  void showPage() const {
    send(TCM_SETCURSEL, static_cast<WPARAM>(tabs_.tab()));
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      const HWND page = pages_[i]->hwnd();
      const bool front = tabs_.visible() && static_cast<int>(i) == tabs_.tab();
      // The focus would stay in the hidden page, and tabbing would walk there.
      if (!front && IsChild(page, GetFocus())) window().moveFocus(hwnd());
      EnableWindow(page, tabs_.enabled());
      ShowWindow(page, front ? SW_SHOWNA : SW_HIDE);
    }
  }

  TabControl& tabs_;
  std::vector<std::unique_ptr<PageWindow>> pages_;
};

}  // namespace

std::unique_ptr<Peer> makeTabPeer(FormWindow& window, TabControl& tabs) {
  return std::make_unique<TabPeer>(window, tabs);
}

}  // namespace pelorin
