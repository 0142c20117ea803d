// The host's main window: opens the component, switches what the component asks its host for, and
// shows the audit log and the statements as they come.
#pragma once

#include <memory>
#include <optional>

#include "host/core/options.h"
#include "host/session/host_session.h"
#include "host/window/help_window.h"
#include "host/window/log_list.h"
#include "host/window/window.h"

namespace pelorin::host {

class MainWindow : public Window {
 public:
  static constexpr wchar_t className[] = L"PelorinHostMain";

  // RunTimeError with a sentence for the user when the database cannot be used.
  explicit MainWindow(const Options& options, OpenConnection odbc = connectOdbc);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow() override;

  HostSession& session() noexcept { return *session_; }
  void showHelp(std::int16_t topic);

 protected:
  LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void makeControls();
  void layOut() const;
  void command(int id);
  void chooseDatabase();
  void flip(bool HostSettings::*setting);
  void showSwitches() const;
  void showStatus() const;
  void scheduleRefresh();
  void refresh();
  void notify(NMHDR& header);
  bool drag(UINT message, LPARAM lParam);
  RECT listArea() const;
  int splitterTop() const;

  std::unique_ptr<LogList> audit_;
  std::unique_ptr<LogList> statements_;
  std::unique_ptr<HelpWindow> help_;
  std::unique_ptr<HostSession> session_;
  HWND open_ = nullptr;
  HWND switches_[3] = {};
  HWND auditTitle_ = nullptr;
  HWND statementsTitle_ = nullptr;
  HWND status_ = nullptr;
  double share_ = 0.4;  // of the height for the audit log
  bool dragging_ = false;
  bool refreshDue_ = false;
};

}  // namespace pelorin::host
