// Where the component's data comes from: the embedded database, an ODBC data source, or ADO.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/ado/ado_connection_object.h"
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
  // RunTimeError with a sentence for the user when that fails. Statements are written to `log`;
  // `odbc` connects to an ODBC data source.
  static DataSource open(const Options& options, std::shared_ptr<StatementLog> log,
                         const OpenConnection& odbc);

  // What is handed to the component as its connection.
  IDispatch* ado() const noexcept { return ado_.get(); }
  // A connection of its own to the same database: what another program would find in it.
  std::shared_ptr<Connection> another() const { return another_(); }
  // False with real ADO, which keeps to itself what it sends.
  bool tellsStatements() const noexcept { return connection_ != nullptr; }
  AuditTrail& audit() const noexcept { return *audit_; }
  // For the status bar.
  const std::string& name() const noexcept { return name_; }
  bool isEmbedded() const noexcept { return embedded_; }

 private:
  DataSource() = default;
  void openEmbedded(const std::string& file, std::shared_ptr<StatementLog> log);
  void openOdbc(const std::string& connectionString, std::shared_ptr<StatementLog> log,
                const OpenConnection& odbc);
  void openAdo(const std::string& connectionString);
  void offer(std::shared_ptr<ResultConnection> connection, std::shared_ptr<StatementLog> log);

  ComPtr<IDispatch> ado_;
  std::shared_ptr<ResultConnection> connection_;
  std::function<std::shared_ptr<Connection>()> another_;
  std::unique_ptr<AuditTrail> audit_ = std::make_unique<AuditTrail>();
  std::string name_;
  bool embedded_ = false;
};

// Through the drivers that the system has.
std::shared_ptr<ResultConnection> connectOdbc(const std::string& connectionString);

// The database file that is used when none is named, in the user's own folder.
std::string defaultDatabase();

}  // namespace pelorin::host
