// A lent ADO connection. It is called late-bound, so that it does not matter which version of ADO
// it belongs to, and never closed.
#pragma once

#include "database/connection.h"
#include "win32/ado/lent_connection.h"

namespace pelorin {

class AdoConnection : public Connection {
 public:
  explicit AdoConnection(ComPtr<IDispatch> connection) : connection_(std::move(connection)) {}

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override;
  void call(ProcedureCall& procedure) override;

 private:
  LentConnection connection_;
};

}  // namespace pelorin
