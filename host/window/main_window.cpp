#include "host/window/main_window.h"

#include <array>
#include <utility>

#include "host/window/choose_file.h"
#include "host/window/log_texts.h"
#include "host/window/resource.h"
#include "win32/text/utf16.h"

namespace pelorin::host {

namespace {

constexpr UINT refreshMessage = WM_APP;
constexpr int auditCommand = 200;
constexpr int statementsCommand = 201;

struct Switch {
  int command;
  const wchar_t* text;
  bool HostSettings::*setting;
};

constexpr Switch switches[] = {
    {IDM_PERMISSION, L"&Permission", &HostSettings::permitted},
    {IDM_NEWER_HARDWARE, L"&Newer hardware", &HostSettings::newerHardware},
    {IDM_CUSTOMISED, L"&Customised descriptions", &HostSettings::customisedDescriptions},
};

}  // namespace

MainWindow::MainWindow(const Options& options, OpenConnection odbc) {
  const HMENU menu = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_MENU));
  create({className, programTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, {940, 640}}, nullptr,
         menu);
  session_ = std::make_unique<HostSession>(
      handle(), options, [this](std::int16_t topic) { showHelp(topic); }, std::move(odbc));
  makeControls();
  session_->statements().onChange = [this] { scheduleRefresh(); };
  session_->onAudit = [this] { scheduleRefresh(); };
  layOut();
  showSwitches();
  refresh();
}

// The component's windows are owned by this one and go before it.
MainWindow::~MainWindow() {
  session_.reset();
}

void MainWindow::makeControls() {
  open_ = makeControl(handle(), L"BUTTON", L"&Trigger actions...", WS_TABSTOP | BS_PUSHBUTTON,
                      IDM_TRIGGER_ACTIONS);
  for (std::size_t i = 0; i < std::size(switches); ++i) {
    switches_[i] = makeControl(handle(), L"BUTTON", switches[i].text, WS_TABSTOP | BS_CHECKBOX,
                               switches[i].command);
  }
  auditTitle_ = makeControl(handle(), L"STATIC", L"Audit log", SS_LEFT, 0);
  audit_ = std::make_unique<LogList>(
      handle(), auditCommand,
      std::initializer_list<LogList::Column>{{L"Time", 140},
                                             {L"Action", 80},
                                             {L"Object", 110},
                                             {L"ID", 60, LVCFMT_RIGHT},
                                             {L"Description", 340},
                                             {L"Code", 60, LVCFMT_RIGHT}},
      [this](std::size_t row, int column) {
        return auditText(session_->data().audit().records().at(row), column);
      });
  statementsTitle_ = makeControl(handle(), L"STATIC", L"Statements sent", SS_LEFT, 0);
  statements_ = std::make_unique<LogList>(
      handle(), statementsCommand,
      std::initializer_list<LogList::Column>{{L"Statement", 560},
                                             {L"Rows", 60, LVCFMT_RIGHT},
                                             {L"Time (ms)", 80, LVCFMT_RIGHT},
                                             {L"Error", 300}},
      [this](std::size_t row, int column) {
        return statementText(session_->statements().statements().at(row), column);
      });
  status_ = makeControl(handle(), STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, 0);
}

// Many statements may come at once; the lists are brought up to date when there is time.
void MainWindow::scheduleRefresh() {
  if (!std::exchange(refreshDue_, true)) PostMessageW(handle(), refreshMessage, 0, 0);
}

void MainWindow::refresh() {
  refreshDue_ = false;
  audit_->show(session_->data().audit().records().size());
  statements_->show(session_->statements().statements().size());
  showStatus();
}

void MainWindow::showSwitches() const {
  const HMENU menu = GetMenu(handle());
  for (std::size_t i = 0; i < std::size(switches); ++i) {
    const bool on = session_->settings().*switches[i].setting;
    CheckMenuItem(menu, static_cast<UINT>(switches[i].command), on ? MF_CHECKED : MF_UNCHECKED);
    SendMessageW(switches_[i], BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

void MainWindow::showStatus() const {
  const HostSettings& settings = session_->settings();
  const std::wstring parts[] = {toWide("Database: " + session_->data().name()),
                                toWide("Operator " + std::to_string(settings.operatorId) +
                                       " at workstation " + std::to_string(settings.workStationId)),
                                toWide("Component " + session_->componentOrigin())};
  for (WPARAM i = 0; i < std::size(parts); ++i) {
    SendMessageW(status_, SB_SETTEXTW, i, reinterpret_cast<LPARAM>(parts[i].c_str()));
  }
}

void MainWindow::showHelp(std::int16_t topic) {
  if (!help_) help_ = std::make_unique<HelpWindow>(handle());
  help_->show(topic);
}

void MainWindow::chooseDatabase() {
  const std::string file = chooseDatabaseFile(handle(), session_->data());
  if (!file.empty()) session_->useDatabase(file);
  showStatus();
}

void MainWindow::flip(bool HostSettings::*setting) {
  bool& value = session_->settings().*setting;
  value = !value;
  showSwitches();
}

void MainWindow::command(int id) {
  for (const Switch& entry : switches) {
    if (entry.command == id) return flip(entry.setting);
  }
  switch (id) {
    case IDM_TRIGGER_ACTIONS:
      session_->raiseForm();
      return showStatus();
    case IDM_DATABASE:
      return chooseDatabase();
    case IDM_CLEAR:
      return session_->statements().clear();
    case IDM_EXIT:
      PostMessageW(handle(), WM_CLOSE, 0, 0);
      return;
    case IDM_ABOUT:
      MessageBoxW(handle(),
                  L"Pelorin reference host 1.0\n\nPlays the part of a security-management "
                  L"application: it lends the component its window, its services and a site's "
                  L"database.",
                  programTitle, MB_OK | MB_ICONINFORMATION);
      return;
    default:
      if (id >= IDM_HELP) showHelp(static_cast<std::int16_t>(id - IDM_HELP));
  }
}

void MainWindow::notify(NMHDR& header) {
  if (audit_ && header.hwndFrom == audit_->handle()) audit_->notify(header);
  if (statements_ && header.hwndFrom == statements_->handle()) statements_->notify(header);
}

LRESULT MainWindow::message(UINT message, WPARAM wParam, LPARAM lParam) {
  if (drag(message, lParam)) return 0;
  switch (message) {
    case WM_SIZE:
      layOut();
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {scaled(560), scaled(360)};
      return 0;
    case WM_COMMAND:
      command(LOWORD(wParam));
      return 0;
    case WM_NOTIFY:
      notify(*reinterpret_cast<NMHDR*>(lParam));
      return 0;
    case refreshMessage:
      refresh();
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return unhandled(message, wParam, lParam);
  }
}

}  // namespace pelorin::host
