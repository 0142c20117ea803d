// The operator's choice from a form's context menu.
#pragma once

#include <optional>

#include "controls/context_menu.h"
#include "win32/views/ui_thread.h"
#include "win32/views/windows_api.h"

namespace pelorin {

// Position of the picked entry; nothing when the menu was left. `place` is in screen pixels.
std::optional<std::size_t> pickFromMenu(UiThread& ui, HWND window, const ContextMenu& menu,
                                        POINT place);

}  // namespace pelorin
