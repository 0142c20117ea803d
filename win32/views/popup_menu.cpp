#include "win32/views/popup_menu.h"

#include "win32/text/utf16.h"
#include "win32/views/handles.h"

namespace pelorin {

std::optional<std::size_t> pickFromMenu(UiThread& ui, HWND window, const ContextMenu& menu,
                                        POINT place) {
  const Menu popup(CreatePopupMenu());
  UINT id = 0;
  for (const MenuEntry& entry : menu.entries()) {
    const UINT flags = (entry.enabled ? UINT{MF_ENABLED} : UINT{MF_GRAYED}) |
                       (entry.checked ? UINT{MF_CHECKED} : UINT{MF_UNCHECKED});
    AppendMenuW(popup.get(), MF_STRING | flags, ++id, toWide(entry.text).c_str());
  }
  const UiThread::ModalScope modal(ui);
  const int picked = TrackPopupMenu(popup.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y,
                                    0, window, nullptr);
  if (picked <= 0) return std::nullopt;
  return static_cast<std::size_t>(picked - 1);
}

}  // namespace pelorin
