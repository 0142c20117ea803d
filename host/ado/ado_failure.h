// The errors of ADO's own, with ADO's texts.
#pragma once

#include <cstdint>

#include "database/ado_numbers.h"

namespace pelorin::host {

// `number` is one of ado::error that ADO itself raises.
[[noreturn]] void failAdo(std::int32_t number);

}  // namespace pelorin::host
