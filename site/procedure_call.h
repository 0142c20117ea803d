// Arguments of a call, matched with the parameters of the procedure.
#pragma once

#include <vector>

#include "site/batch_reader.h"
#include "site/procedure.h"

namespace pelorin::site {

// One value per parameter, converted to its type. Errors as the server raises them: too many, one
// missing, an unknown name, a value of the wrong type or length.
std::vector<Value> bindArguments(const Procedure& procedure,
                                 const std::vector<Argument>& arguments);

}  // namespace pelorin::site
