// The host's part of the contract with the component, from the first object to the last release.
//
//   HostSession session(window, options, showHelp);
//   session.raiseForm();
//
// Lives on the thread of the user interface, which has to have a single-threaded apartment.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/automation/class_registration.h"
#include "host/core/options.h"
#include "host/core/statement_log.h"
#include "host/session/component.h"
#include "host/session/data_source.h"
#include "host/session/services_object.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

class HostSession {
 public:
  using ShowHelp = std::function<void(std::int16_t topic)>;

  // Opens the database; RunTimeError with a sentence for the user when that fails.
  HostSession(HWND window, Options options, ShowHelp showHelp, OpenConnection odbc = connectOdbc);
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;
  ~HostSession();

  // Goes over to another database file; the old one stays in use when that fails.
  void useDatabase(const std::string& file);

  // Loads the component when it is not; RunTimeError when it cannot be loaded.
  void loadComponent();
  // Opens the component's window, loading it first when needed.
  void raiseForm();

  HostSettings& settings() noexcept { return state_->settings; }
  StatementLog& statements() noexcept { return *statements_; }
  const DataSource& data() const noexcept { return *data_; }
  // How the component was loaded.
  std::string componentOrigin() const;

  // Called when the audit log has changed.
  std::function<void()> onAudit;

 private:
  void use(DataSource data);
  void offerClasses();

  Options options_;
  OpenConnection odbc_;
  std::shared_ptr<StatementLog> statements_ = std::make_shared<StatementLog>();
  std::shared_ptr<HostState> state_ = std::make_shared<HostState>();
  ComPtr<IDispatch> window_;
  ComPtr<IDispatch> services_;
  std::vector<std::unique_ptr<ClassRegistration>> classes_;
  std::unique_ptr<DataSource> data_;
  std::unique_ptr<Component> component_;
};

}  // namespace pelorin::host
