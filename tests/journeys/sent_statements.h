// What a component sends over a connection, and how it is compared with the table of statements.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "site/statement_table.h"
#include "tests/fakes/faulty_connection.h"

namespace pelorin::test {

// Passes everything on to another connection and keeps what was sent, each text once.
class RecordedConnection : public FaultyConnection {
 public:
  using FaultyConnection::FaultyConnection;

  std::set<std::string> statements;
  std::set<std::string> commands;  // as commandText tells them

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override;
  void call(ProcedureCall& call) override;
};

// The procedure with its parameters' names, types and directions, without their values.
std::string commandText(const ProcedureCall& call);

// Whether `sent` is the statement, word for word but for the literals in its places: a number where
// the sample is one, anything up to the next quote between quotes, else a name.
bool isSentAs(const site::SiteStatement& statement, std::string_view sent);

}  // namespace pelorin::test
