// The call of a stored procedure with its parameters.
#pragma once

#include <string>
#include <vector>

#include "base/value.h"

namespace pelorin {

enum class ParameterType { Integer, Double };
enum class ParameterDirection { Input, Output };

struct ProcedureParameter {
  std::string name;  // without "@"
  ParameterType type = ParameterType::Integer;
  ParameterDirection direction = ParameterDirection::Input;
  Value value;  // after the call: what came back in an output parameter
};

struct ProcedureCall {
  std::string procedure;
  std::vector<ProcedureParameter> parameters;  // in the order in which they are appended
};

}  // namespace pelorin
