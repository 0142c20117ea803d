// The site's database behind an ODBC data source.
//
//   OdbcConnection connection("Driver=FreeTDS;Server=...;Port=1433;Database=...;UID=...;PWD=...");
//
// Statements go to the server word for word. Each result is read as a whole when it is opened, so
// that a driver with one active result for each connection is enough.
#pragma once

#include <string>

#include "host/core/result_connection.h"
#include "host/odbc/odbc_handle.h"

namespace pelorin::host {

class OdbcConnection : public ResultConnection {
 public:
  // DatabaseError when the data source cannot be reached.
  explicit OdbcConnection(const std::string& connectionString);
  OdbcConnection(const OdbcConnection&) = delete;
  OdbcConnection& operator=(const OdbcConnection&) = delete;
  ~OdbcConnection() override;

  std::unique_ptr<ResultCursor> openResults(std::string_view sql) override;
  std::vector<ServerMessage> messages() const override { return messages_; }

 protected:
  void run(std::string_view sql) override;
  void call(ProcedureCall& call) override;

 private:
  void connect(const std::string& connectionString);

  OdbcEnvironment environment_;
  OdbcSession session_;
  std::vector<ServerMessage> messages_;
};

}  // namespace pelorin::host
