#include "site/errors.h"

#include <array>

namespace pelorin::site {

namespace {

struct NumberEntry {
  std::int32_t server;
  std::int32_t ado;
};
// Those whose state says less than their number.
constexpr std::array<NumberEntry, 5> byNumber{{{201, ado_error::missingParameter},
                                               {208, ado_error::noTable},
                                               {229, ado_error::noPermission},
                                               {230, ado_error::noPermission},
                                               {8114, ado_error::conversion}}};

struct StateEntry {
  std::string_view beginning;
  std::int32_t ado;
};
// The first that fits; drivers of the older kind say 37 and S0 for 42.
constexpr std::array<StateEntry, 11> byState{{{"42S02", ado_error::noTable},
                                              {"S0002", ado_error::noTable},
                                              {"22018", ado_error::conversion},
                                              {"22005", ado_error::conversion},
                                              {"22", ado_error::overflow},
                                              {"23", ado_error::constraint},
                                              {"28", ado_error::loginFailed},
                                              {"HYT", ado_error::timedOut},
                                              {"42", ado_error::statement},
                                              {"37", ado_error::statement},
                                              {"S0", ado_error::statement}}};

}  // namespace

std::int32_t adoErrorNumber(std::int32_t serverNumber, std::string_view sqlState) {
  for (const NumberEntry& entry : byNumber) {
    if (entry.server == serverNumber) return entry.ado;
  }
  for (const StateEntry& entry : byState) {
    if (sqlState.starts_with(entry.beginning)) return entry.ado;
  }
  return ado_error::failed;
}

}  // namespace pelorin::site
