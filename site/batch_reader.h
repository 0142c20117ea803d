// Reads what the component sends in SQL Server's language and says what the embedded engine runs.
//
// Understood are one select, insert, update or delete, and one call of a procedure, with or without
// exec. Everything else is refused with the server's words; nothing is repaired.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/value.h"

namespace pelorin::site {

struct EngineText {
  std::string sql;
};

struct Argument {
  std::string name;  // with "@"; empty for a positional one
  Value value;
};

struct CallText {
  std::string procedure;
  std::vector<Argument> arguments;
};

using Batch = std::variant<EngineText, CallText>;

Batch readBatch(std::string_view sql);

}  // namespace pelorin::site
