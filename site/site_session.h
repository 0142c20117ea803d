// Runs what the component sends over the embedded engine.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "database/connection.h"

namespace pelorin {

namespace site {
class Engine;
class EngineStatement;
}  // namespace site

struct StatementRecord {
  std::string text;
  std::chrono::microseconds took{};  // until the first row was there
  std::string error;                 // empty when it went well
};

using StatementObserver = std::function<void(const StatementRecord&)>;

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

  // Told of every statement, failed ones included. Must not throw.
  void observe(StatementObserver observer) { observer_ = std::move(observer); }

 private:
  SiteResult runBatch(std::string_view sql);
  SiteResult runStatement(site::EngineStatement statement);
  template <class Work>
  SiteResult observed(const std::string& text, Work&& work);

  std::shared_ptr<site::Engine> engine_;
  StatementObserver observer_;
};

// The component's connection over a session.
std::unique_ptr<Connection> connectionOver(std::shared_ptr<SiteSession> session);

}  // namespace pelorin
