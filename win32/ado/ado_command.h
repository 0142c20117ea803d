// Stored procedures with parameters, through an ADO Command.
#pragma once

#include "database/connection.h"
#include "win32/com/com_ptr.h"

namespace pelorin {

// Calls the procedure on the connection and stores what came back in the output parameters.
void callProcedure(IDispatch* connection, ProcedureCall& procedure);

}  // namespace pelorin
