// The statements of the component that call a stored procedure.
#pragma once

#include <string>

#include "database/connection.h"
#include "site/procedure.h"
#include "site/statement_table.h"

namespace pelorin::site {

// Null when the statement calls none.
const Procedure* calledProcedure(const SiteStatement& statement);

// A command as the component hands it to the connection, with the sample values.
ProcedureCall commandCall(const SiteStatement& statement);

// What a script sends a server to have the same run: a statement word for word, a command as the
// call that it makes of itself.
std::string serverBatch(const SiteStatement& statement);

}  // namespace pelorin::site
