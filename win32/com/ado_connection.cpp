#include "win32/com/ado_connection.h"

#include "win32/com/ado_command.h"
#include "win32/com/ado_constants.h"
#include "win32/com/ado_cursor.h"

namespace pelorin {

std::unique_ptr<Cursor> AdoConnection::openCursor(std::string_view sql) {
  // What Execute gives is forward-only and read-only.
  return std::make_unique<AdoCursor>(connection_.object(
      L"Execute", {Variant::text(sql), Variant::missing(), Variant::int32(ado::commandText)}));
}

void AdoConnection::run(std::string_view sql) {
  connection_.call(L"Execute", {Variant::text(sql), Variant::missing(),
                                Variant::int32(ado::commandText | ado::executeNoRecords)});
}

void AdoConnection::call(ProcedureCall& procedure) {
  callProcedure(connection_.get(), procedure);
}

}  // namespace pelorin
