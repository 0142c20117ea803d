#include "win32/views/dialog.h"

namespace pelorin {

namespace {

// The template is followed by three empty counted fields: menu, class and title.
struct EmptyDialog {
  DLGTEMPLATE header;
  WORD menu;
  WORD windowClass;
  WORD title;
};

INT_PTR CALLBACK leaveToSubclass(HWND, UINT, WPARAM, LPARAM) noexcept {
  return FALSE;
}

}  // namespace

HWND makeDialog(const UiThread& ui, HWND ownerOrParent, DWORD style, DWORD extendedStyle) {
  const ActivationContext::Scope styles(ui.styles());
  EmptyDialog dialog{};
  dialog.header.style = style;
  dialog.header.dwExtendedStyle = extendedStyle;
  return CreateDialogIndirectParamW(ui.module(), &dialog.header, ownerOrParent, &leaveToSubclass,
                                    0);
}

}  // namespace pelorin
