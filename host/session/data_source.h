// Where the component's data comes from: the embedded database, an ODBC data source, or ADO.
#pragma once

#include <memory>
#include <string>

#include "host/core/audit_trail.h"
#include "host/core/options.h"
#include "host/core/result_connection.h"
#include "host/core/statement_log.h"
#include "win32/com/com_ptr.h"

struct IDispatch;

namespace pelorin::host {

class DataSource {
 public:
  // As the options say; a missing database file is made, with the demonstration site in it.
  // RunTimeError with a sentence for the user when that fails. Statements are written to `log`.
  static DataSource open(const Options& options, std::shared_ptr<StatementLog> log);

  // What is handed to the component as its connection.
  IDispatch* ado() const noexcept { return ado_.get(); }
  // The same connection for the host's own questions; null with real ADO.
  ResultConnection* connection() const noexcept { return connection_.get(); }
  AuditTrail& audit() const noexcept { return *audit_; }
  // For the status bar.
  const std::string& name() const noexcept { return name_; }
  bool isEmbedded() const noexcept { return embedded_; }

 private:
  DataSource() = default;
  void openEmbedded(const std::string& file, std::shared_ptr<StatementLog> log);
  void openOdbc(const std::string& connectionString, std::shared_ptr<StatementLog> log);
  void openAdo(const std::string& connectionString);
  void offer(std::shared_ptr<ResultConnection> connection, std::shared_ptr<StatementLog> log);

  ComPtr<IDispatch> ado_;
  std::shared_ptr<ResultConnection> connection_;
  std::unique_ptr<AuditTrail> audit_ = std::make_unique<AuditTrail>();
  std::string name_;
  bool embedded_ = false;
};

// The database file that is used when none is named, in the user's own folder.
std::string defaultDatabase();

}  // namespace pelorin::host
