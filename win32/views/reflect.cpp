#include "win32/views/reflect.h"

#include "win32/views/peer.h"

namespace pelorin {

namespace {

std::optional<LRESULT> reflectCommand(WPARAM w, HWND sender) {
  Peer* peer = Peer::of(sender);
  if (peer == nullptr) return std::nullopt;
  peer->onCommand(HIWORD(w));
  return 0;
}

std::optional<LRESULT> reflectNotify(NMHDR& header) {
  Peer* peer = Peer::of(header.hwndFrom);
  if (peer == nullptr) return std::nullopt;
  return peer->onNotify(header);
}

std::optional<LRESULT> reflectDraw(const DRAWITEMSTRUCT& item) {
  Peer* peer = Peer::of(item.hwndItem);
  if (peer == nullptr || !peer->onDraw(item)) return std::nullopt;
  return TRUE;
}

}  // namespace

std::optional<LRESULT> reflect(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      return reflectCommand(w, reinterpret_cast<HWND>(l));
    case WM_NOTIFY:
      return reflectNotify(*reinterpret_cast<NMHDR*>(l));
    case WM_DRAWITEM:
      return reflectDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(l));
    default:
      return std::nullopt;
  }
}

}  // namespace pelorin
