// The stored procedures of the site database, one file each in site/procedures: parameters, result
// columns, and the body for each engine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "site/sql_type.h"

namespace pelorin::site {

struct Parameter {
  std::string name;  // with "@"
  SqlType type;
  bool output = false;
};

struct ResultColumn {
  std::string name;
  SqlType type;
};

struct Procedure {
  std::string name;
  std::string purpose;
  std::vector<Parameter> parameters;
  std::vector<ResultColumn> results;  // none: it returns no rows
  std::string serverBody;
  // One statement. A result column named as an output parameter fills that parameter.
  std::string embeddedBody;
};

// Throws with the offending line.
Procedure readProcedure(std::string_view name, std::string_view text);

// The procedures that are built into the program.
const std::vector<Procedure>& siteProcedures();
// Without regard to case; error "Could not find stored procedure 'x'." when there is none.
const Procedure& findProcedure(std::string_view name);

}  // namespace pelorin::site
