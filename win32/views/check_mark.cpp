#include "win32/views/check_mark.h"

#include <memory>
#include <type_traits>

#include "win32/views/windows_api.h"

namespace pelorin {

namespace {

struct CloseTheme {
  void operator()(HTHEME theme) const noexcept { CloseThemeData(theme); }
};
using Theme = std::unique_ptr<std::remove_pointer_t<HTHEME>, CloseTheme>;

int themeState(bool checked, bool enabled) {
  if (checked) return enabled ? CBS_CHECKEDNORMAL : CBS_CHECKEDDISABLED;
  return enabled ? CBS_UNCHECKEDNORMAL : CBS_UNCHECKEDDISABLED;
}

UINT classicState(bool checked, bool enabled) {
  return UINT{DFCS_BUTTONCHECK} | (checked ? UINT{DFCS_CHECKED} : 0U) |
         (enabled ? 0U : UINT{DFCS_INACTIVE});
}

}  // namespace

void drawCheckMark(HWND window, HDC dc, const RECT& area, bool checked, bool enabled) {
  const Theme theme(OpenThemeData(window, L"BUTTON"));
  if (theme != nullptr) {
    DrawThemeBackground(theme.get(), dc, BP_CHECKBOX, themeState(checked, enabled), &area, nullptr);
    return;
  }
  RECT square = area;
  DrawFrameControl(dc, &square, DFC_BUTTON, classicState(checked, enabled));
}

}  // namespace pelorin
