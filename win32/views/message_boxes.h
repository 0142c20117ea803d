// Message boxes that hold back the component's windows while they are open.
#pragma once

#include <vector>

#include "controls/screen.h"
#include "win32/views/ui_thread.h"
#include "win32/views/windows_api.h"

namespace pelorin {

// `ours` are the windows of the component. Answers No when the box was taken away unanswered.
BoxAnswer showMessageBox(UiThread& ui, const BoxRequest& request, HWND owner,
                         const std::vector<HWND>& ours);

// From a thread that has no part in the component's windows.
void showLoneBox(const BoxRequest& request);

}  // namespace pelorin
