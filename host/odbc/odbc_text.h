// Text as ODBC's wide calls have it; base/utf.h has the rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/odbc/odbc_api.h"

namespace pelorin::host {

// With a closing zero.
std::vector<SQLWCHAR> wideText(std::string_view text);
std::string utf8Text(const SQLWCHAR* text, std::size_t length);

}  // namespace pelorin::host
