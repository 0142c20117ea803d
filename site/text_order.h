// The order of texts that a server's usual collation (Latin1_General_CI_AS) gives them: without
// regard to case, accents only where letters are equal otherwise, blanks at the end ignored.
#pragma once

#include <string_view>

namespace pelorin::site {

// Below 0, 0 or above 0, for UTF-8. Signs come before digits, digits before letters.
int compareTexts(std::string_view left, std::string_view right);

}  // namespace pelorin::site
