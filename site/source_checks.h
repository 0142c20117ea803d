// What the tables and procedures of a server must look like, as conditions in its language.
#pragma once

#include <string>

#include "site/procedure.h"
#include "site/schema.h"

namespace pelorin::site {

struct SourceCheck {
  std::string condition;  // true on the server when all is well
  std::string complaint;  // a sentence, plain ASCII without quotes
};

SourceCheck columnCheck(const Table& table, const Column& column);
// Calls pass their arguments by position.
SourceCheck parameterCheck(const Procedure& procedure, std::size_t at);
// By name, and by position where the component reads it so.
SourceCheck resultCheck(const Procedure& procedure, std::size_t at);
// True when the server can tell what the procedure returns without running it.
std::string canDescribeResult(const Procedure& procedure);

}  // namespace pelorin::site
