// Server names are shown in capitals, as the network writes them.
#pragma once

#include <string>
#include <string_view>

namespace pelorin {

// Capitals for Latin, Greek and Cyrillic letters of a UTF-8 text, whatever the locale; everything
// else stays, bytes that are no UTF-8 included.
std::string upperCase(std::string_view utf8);

}  // namespace pelorin
