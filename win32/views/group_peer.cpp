// A frame's native twin.

#include "win32/views/form_window.h"
#include "win32/views/peers.h"
#include "win32/views/reflect.h"
#include "win32/views/windows_api.h"

namespace pelorin {

namespace {

// A group box whose controls are its children, and that hides what lies behind it.
class GroupPeer final : public Peer {
 public:
  GroupPeer(FormWindow& window, Frame& group) : Peer(window, group) {}

  HWND pageWindow(int) const override { return hwnd(); }

 protected:
  NativeKind nativeKind() const override {
    return {L"Button", BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
  }

  LRESULT handle(UINT message, WPARAM w, LPARAM l) override {
    if (const auto answer = reflect(message, w, l)) return *answer;
    switch (message) {
      case WM_ERASEBKGND:
        DrawThemeParentBackground(hwnd(), reinterpret_cast<HDC>(w), nullptr);
        return TRUE;
      case WM_NCHITTEST:
        // A group box lets clicks through to what lies behind it.
        return HTCLIENT;
      case WM_CTLCOLORSTATIC:
      case WM_CTLCOLORBTN:
        return SendMessageW(GetParent(hwnd()), message, w, l);
      default:
        return native(message, w, l);
    }
  }
};

}  // namespace

std::unique_ptr<Peer> makeGroupPeer(FormWindow& window, Frame& group) {
  return std::make_unique<GroupPeer>(window, group);
}

}  // namespace pelorin
