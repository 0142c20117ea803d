#include "host/window/help_window.h"

#include <string>

#include "host/window/resource.h"
#include "win32/text/utf16.h"

namespace pelorin::host {

namespace {

constexpr std::int16_t topics[] = {HELP_SUMMARY, HELP_TRIGGER_TAB, HELP_ACTION_TAB,
                                   HELP_LOCATION_PICKER};
constexpr int topicsCommand = 1;
constexpr int topicsWidth = 190;
constexpr int gap = 8;

std::string titleOf(const std::string& page) {
  return page.substr(0, page.find('\n'));
}

// The edit control breaks lines at CR LF only.
std::wstring withLineBreaks(const std::string& page) {
  std::wstring text;
  for (const wchar_t unit : toWide(page)) {
    if (unit == L'\n') text += L'\r';
    text += unit;
  }
  return text;
}

}  // namespace

std::string helpPage(std::int16_t topic) {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(topic), L"HELPPAGE");
  if (found == nullptr) return {};
  const HGLOBAL loaded = LoadResource(nullptr, found);
  const auto* text = static_cast<const char*>(LockResource(loaded));
  return {text, SizeofResource(nullptr, found)};
}

HelpWindow::HelpWindow(HWND owner) {
  create({L"PelorinHostHelp", L"Pelorin Help", WS_OVERLAPPEDWINDOW, {760, 520}}, owner, nullptr);
  makeControls();
  layOut();
}

void HelpWindow::makeControls() {
  topics_ = makeControl(handle(), L"LISTBOX", L"",
                        WS_TABSTOP | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, topicsCommand);
  page_ = makeControl(handle(), L"EDIT", L"",
                      WS_TABSTOP | WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_READONLY, 0);
  const int margin = scaled(gap);
  SendMessageW(page_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
  for (const std::int16_t topic : topics) {
    const std::wstring title = toWide(titleOf(helpPage(topic)));
    SendMessageW(topics_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title.c_str()));
  }
}

void HelpWindow::show(std::int16_t topic) {
  auto selected = static_cast<WPARAM>(-1);
  for (std::size_t i = 0; i < std::size(topics); ++i) {
    if (topics[i] == topic) selected = i;
  }
  SendMessageW(topics_, LB_SETCURSEL, selected, 0);
  showPage(topic);
  ShowWindow(handle(), IsIconic(handle()) ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(handle());
}

void HelpWindow::showPage(std::int16_t topic) const {
  std::string page = helpPage(topic);
  if (page.empty()) page = "There is no page for topic " + std::to_string(topic) + ".";
  SetWindowTextW(page_, withLineBreaks(page).c_str());
}

void HelpWindow::layOut() const {
  RECT client{};
  GetClientRect(handle(), &client);
  const int space = scaled(gap);
  const int width = scaled(topicsWidth);
  const int height = client.bottom - 2 * space;
  MoveWindow(topics_, space, space, width, height, TRUE);
  MoveWindow(page_, width + 2 * space, space, client.right - width - 3 * space, height, TRUE);
}

LRESULT HelpWindow::message(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      layOut();
      return 0;
    case WM_SETFOCUS:
      SetFocus(topics_);
      return 0;
    case WM_CTLCOLORSTATIC:  // a read-only edit asks as a label does
      return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    case WM_COMMAND:
      if (LOWORD(wParam) == topicsCommand && HIWORD(wParam) == LBN_SELCHANGE) {
        const LRESULT selected = SendMessageW(topics_, LB_GETCURSEL, 0, 0);
        if (selected >= 0) showPage(topics[selected]);
      }
      return 0;
    case WM_CLOSE:
      ShowWindow(handle(), SW_HIDE);
      return 0;
    default:
      return unhandled(message, wParam, lParam);
  }
}

}  // namespace pelorin::host
