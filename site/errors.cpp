#include "site/errors.h"

#include <array>

#include "database/ado_numbers.h"

namespace pelorin::site {

namespace {

struct NumberEntry {
  std::int32_t server;
  std::int32_t ado;
};
// Those whose state says less than their number.
constexpr std::array<NumberEntry, 5> byNumber{{{201, ado::error::missingParameter},
                                               {208, ado::error::noTable},
                                               {229, ado::error::noPermission},
                                               {230, ado::error::noPermission},
                                               {8114, ado::error::conversion}}};

struct StateEntry {
  std::string_view beginning;
  std::int32_t ado;
};
// The first that fits; drivers of the older kind say 37 and S0 for 42.
constexpr std::array<StateEntry, 11> byState{{{"42S02", ado::error::noTable},
                                              {"S0002", ado::error::noTable},
                                              {"22018", ado::error::conversion},
                                              {"22005", ado::error::conversion},
                                              {"22", ado::error::overflow},
                                              {"23", ado::error::constraint},
                                              {"28", ado::error::loginFailed},
                                              {"HYT", ado::error::timedOut},
                                              {"42", ado::error::statement},
                                              {"37", ado::error::statement},
                                              {"S0", ado::error::statement}}};

}  // namespace

std::int32_t adoErrorNumber(std::int32_t serverNumber, std::string_view sqlState) {
  for (const NumberEntry& entry : byNumber) {
    if (entry.server == serverNumber) return entry.ado;
  }
  for (const StateEntry& entry : byState) {
    if (sqlState.starts_with(entry.beginning)) return entry.ado;
  }
  return ado::error::failed;
}

}  // namespace pelorin::site
