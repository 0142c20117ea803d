// Gives the identifiers of the interface definition their storage: the first header turns the
// declarations in the second one into definitions.
#include <initguid.h>
// clang-format off
#include "Pelorin.h"
// clang-format on
