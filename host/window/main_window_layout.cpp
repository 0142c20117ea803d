// Where the main window's controls stand, and how they follow its size.

#include <algorithm>

#include "host/window/main_window.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

constexpr int spacing = 8;
constexpr int buttonWidth = 150;
constexpr int buttonHeight = 28;
constexpr int switchWidths[] = {100, 130, 180};
constexpr int titleHeight = 20;
constexpr double smallestShare = 0.15;
// The first status part takes what the others leave.
constexpr int operatorWidth = 190;
constexpr int originWidth = 330;

void setStatusParts(HWND status, int width) {
  const int origin = std::max(width - scaled(originWidth), 1);
  const int operatorLeft = std::max(origin - scaled(operatorWidth), 1);
  int edges[] = {operatorLeft, origin, -1};
  SendMessageW(status, SB_SETPARTS, std::size(edges), reinterpret_cast<LPARAM>(edges));
}

void place(HWND window, int left, int top, int width, int height) {
  MoveWindow(window, left, top, std::max(width, 0), std::max(height, 0), TRUE);
}

}  // namespace

// Between the row of buttons and the status bar.
RECT MainWindow::listArea() const {
  RECT area{};
  RECT bar{};
  GetClientRect(handle(), &area);
  GetWindowRect(status_, &bar);
  InflateRect(&area, -scaled(spacing), 0);
  area.top += scaled(buttonHeight) + 2 * scaled(spacing);
  area.bottom -= bar.bottom - bar.top + scaled(spacing);
  return area;
}

int MainWindow::splitterTop() const {
  const RECT area = listArea();
  return area.top + static_cast<int>((area.bottom - area.top - scaled(spacing)) * share_);
}

void MainWindow::layOut() const {
  if (status_ == nullptr) return;
  SendMessageW(status_, WM_SIZE, 0, 0);
  const RECT area = listArea();
  const int space = scaled(spacing);
  const int width = area.right - area.left;
  setStatusParts(status_, width);
  place(open_, area.left, space, scaled(buttonWidth), scaled(buttonHeight));
  int left = area.left + scaled(buttonWidth) + 2 * space;
  for (std::size_t i = 0; i < std::size(switchWidths); ++i) {
    place(switches_[i], left, space, scaled(switchWidths[i]), scaled(buttonHeight));
    left += scaled(switchWidths[i]) + space;
  }
  const int title = scaled(titleHeight);
  const int middle = splitterTop();
  place(auditTitle_, area.left, area.top, width, title);
  place(audit_->handle(), area.left, area.top + title, width, middle - area.top - title);
  place(statementsTitle_, area.left, middle + space, width, title);
  place(statements_->handle(), area.left, middle + space + title, width,
        area.bottom - middle - space - title);
}

// The gap between the two lists is dragged to share the height anew.
bool MainWindow::drag(UINT message, LPARAM lParam) {
  if (status_ == nullptr) return false;
  const int y = GET_Y_LPARAM(lParam);
  const int top = splitterTop();
  const bool over = y >= top && y < top + scaled(spacing);
  if (message == WM_LBUTTONDOWN && over) {
    dragging_ = true;
    SetCapture(handle());
  } else if (message == WM_MOUSEMOVE && (dragging_ || over)) {
    SetCursor(LoadCursorW(nullptr, IDC_SIZENS));
    if (!dragging_) return true;
    const RECT area = listArea();
    const double share = static_cast<double>(y - area.top) / (area.bottom - area.top);
    share_ = std::clamp(share, smallestShare, 1 - smallestShare);
    layOut();
  } else if (message == WM_LBUTTONUP && dragging_) {
    ReleaseCapture();
  } else if (message == WM_CAPTURECHANGED) {
    dragging_ = false;
  } else {
    return false;
  }
  return true;
}

}  // namespace pelorin::host
