// The one place where text changes between UTF-8, as everywhere inside, and UTF-16, as Windows and
// COM have it.
#pragma once

#include <string>
#include <string_view>

namespace pelorin {

// A byte sequence that is not UTF-8 becomes U+FFFD.
std::wstring toWide(std::string_view text);
// Half of a surrogate pair standing alone keeps its code and comes back unchanged from toWide.
std::string toUtf8(std::wstring_view text);

}  // namespace pelorin
