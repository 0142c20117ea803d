#include "database/connection.h"

namespace pelorin {

RecordSet Connection::open(std::string_view sql, SourceLine where) {
  return withLine(where, [&] { return RecordSet(openCursor(sql)); });
}

void Connection::execute(std::string_view sql, SourceLine where) {
  withLine(where, [&] { run(sql); });
}

void Connection::execute(ProcedureCall& procedure, SourceLine where) {
  withLine(where, [&] { call(procedure); });
}

}  // namespace pelorin
