// Texts for Windows and COM, and back; base/utf.h has the rules.
#pragma once

#include <string>
#include <string_view>

namespace pelorin {

std::wstring toWide(std::string_view text);
std::string toUtf8(std::wstring_view text);

}  // namespace pelorin
