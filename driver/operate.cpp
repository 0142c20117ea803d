#include "driver/operate.h"

#include <algorithm>

#include "driver/find_window.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::driver {

namespace {

LPARAM position(POINT point) {
  return MAKELPARAM(point.x, point.y);
}

// Handlers may ask where the pointer is.
void movePointer(HWND window, POINT point) {
  ClientToScreen(window, &point);
  SetCursorPos(point.x, point.y);
}

// Messages that were posted before this one are handled when it comes back.
void settle(HWND window) {
  SendMessageW(window, WM_NULL, 0, 0);
}

std::string rowText(HWND list, UINT lengthMessage, UINT textMessage, int row) {
  const LRESULT length = SendMessageW(list, lengthMessage, static_cast<WPARAM>(row), 0);
  if (length < 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  SendMessageW(list, textMessage, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  return toUtf8(text.c_str());
}

std::vector<std::string> rowTexts(HWND list, UINT countMessage, UINT lengthMessage,
                                  UINT textMessage) {
  std::vector<std::string> rows;
  const auto count = static_cast<int>(SendMessageW(list, countMessage, 0, 0));
  rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int row = 0; row < count; ++row) {
    rows.push_back(rowText(list, lengthMessage, textMessage, row));
  }
  return rows;
}

RECT rowArea(HWND listBox, int row) {
  RECT area{};
  SendMessageW(listBox, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
  return area;
}

void requireReady(HWND window) {
  waitFor(designName(window) + " enabled and in sight",
          [&] { return IsWindowEnabled(window) && isShown(window); });
}

}  // namespace

POINT middleOf(const RECT& area) {
  return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

void clickAt(HWND window, POINT point) {
  movePointer(window, point);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, position(point));
  PostMessageW(window, WM_LBUTTONUP, 0, position(point));
  settle(window);
}

void doubleClickAt(HWND window, POINT point) {
  clickAt(window, point);
  PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, position(point));
  PostMessageW(window, WM_LBUTTONUP, 0, position(point));
  settle(window);
}

void pressKey(HWND window, WORD key) {
  const LPARAM scan = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
  constexpr auto released = static_cast<LPARAM>(0xC0000000);
  PostMessageW(window, WM_KEYDOWN, key, scan | 1);
  PostMessageW(window, WM_KEYUP, key, scan | 1 | released);
  settle(window);
}

void pressMnemonic(HWND window, char letter) {
  constexpr LPARAM withAlt = 0x20000001;
  PostMessageW(window, WM_SYSCHAR, static_cast<WPARAM>(letter), withAlt);
  settle(window);
}

void typeText(HWND window, const std::string& text) {
  for (const wchar_t unit : toWide(text)) PostMessageW(window, WM_CHAR, unit, 1);
  settle(window);
}

void replaceText(HWND textBox, const std::string& text) {
  SendMessageW(textBox, EM_SETSEL, 0, -1);
  typeText(textBox, text);
}

void clickButton(HWND button) {
  requireReady(button);
  PostMessageW(button, BM_CLICK, 0, 0);
}

bool isChecked(HWND checkBox) {
  return SendMessageW(checkBox, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int comboRow(HWND combo) {
  return static_cast<int>(SendMessageW(combo, CB_GETCURSEL, 0, 0));
}

std::vector<std::string> comboRows(HWND combo) {
  return rowTexts(combo, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

void chooseRow(HWND combo, int row) {
  requireReady(combo);
  if (row < 0 || row >= static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0))) {
    throw DriverError(designName(combo) + " has no row " + std::to_string(row));
  }
  while (comboRow(combo) != row) {
    const int before = comboRow(combo);
    pressKey(combo, before < row ? VK_DOWN : VK_UP);
    waitFor("another row of " + designName(combo), [&] { return comboRow(combo) != before; });
  }
}

void chooseText(HWND combo, const std::string& text) {
  const std::vector<std::string> rows = comboRows(combo);
  const auto found = std::find(rows.begin(), rows.end(), text);
  if (found == rows.end()) throw DriverError(designName(combo) + " has no row " + text);
  chooseRow(combo, static_cast<int>(found - rows.begin()));
}

std::vector<std::string> listBoxRows(HWND listBox) {
  return rowTexts(listBox, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

bool isTicked(HWND listBox, int row) {
  return SendMessageW(listBox, LB_GETSEL, static_cast<WPARAM>(row), 0) > 0;
}

POINT listBoxPlace(HWND listBox, int row) {
  RECT client{};
  GetClientRect(listBox, &client);
  RECT place = rowArea(listBox, row);
  if (place.bottom > client.bottom || place.top < 0) {
    SendMessageW(listBox, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
    place = rowArea(listBox, row);
  }
  return middleOf(place);
}

void tickRow(HWND listBox, int row) {
  requireReady(listBox);
  const bool before = isTicked(listBox, row);
  clickAt(listBox, listBoxPlace(listBox, row));
  waitFor("tick in " + designName(listBox), [&] { return isTicked(listBox, row) != before; });
}

void chooseTab(HWND tabs, int page) {
  requireReady(tabs);
  RECT place{};
  SendMessageW(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&place));
  clickAt(tabs, middleOf(place));
  waitFor("tab " + std::to_string(page),
          [&] { return SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == page; });
}

}  // namespace pelorin::driver
