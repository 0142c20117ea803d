#include "win32/ado/ado_connection.h"

#include "database/ado_numbers.h"
#include "win32/ado/ado_command.h"
#include "win32/ado/ado_cursor.h"

namespace pelorin {

std::unique_ptr<Cursor> AdoConnection::openCursor(std::string_view sql) {
  return connection_.watched([&] {
    // What Execute gives is forward-only and read-only.
    LateBound rows = connection_.object().object(
        L"Execute",
        {Variant::text(sql), Variant::missing(), Variant::int32(ado::command_type::text)});
    return std::make_unique<AdoCursor>(connection_, std::move(rows));
  });
}

void AdoConnection::run(std::string_view sql) {
  connection_.watched([&] {
    connection_.object().call(
        L"Execute", {Variant::text(sql), Variant::missing(),
                     Variant::int32(ado::command_type::text | ado::command_type::noRecords)});
  });
}

void AdoConnection::call(ProcedureCall& procedure) {
  connection_.watched([&] { callProcedure(connection_.object().get(), procedure); });
}

}  // namespace pelorin
