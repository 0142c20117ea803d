// Runs what the component sends over the embedded engine.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "database/connection.h"

namespace pelorin {

namespace site {
class Engine;
class EngineStatement;
}  // namespace site

struct SiteResult {
  std::unique_ptr<Cursor> rows;       // null when the statement returns none
  std::int64_t recordsAffected = -1;  // -1 for a statement that returns rows
};

// Several results may be open at once; each keeps the database open.
class SiteSession {
 public:
  explicit SiteSession(std::shared_ptr<site::Engine> engine);

  // One batch in SQL Server's language. Errors carry ADO's number and the server's text.
  SiteResult run(std::string_view sql);
  // As an ADO command calls a stored procedure: parameters by position, output values put back.
  SiteResult call(ProcedureCall& call);

 private:
  SiteResult runStatement(site::EngineStatement statement);

  std::shared_ptr<site::Engine> engine_;
};

// The component's connection over a session.
std::unique_ptr<Connection> connectionOver(std::shared_ptr<SiteSession> session);

}  // namespace pelorin
