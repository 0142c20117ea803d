#include "win32/text/utf16.h"

#include "base/utf.h"

namespace pelorin {

std::wstring toWide(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  appendUtf16(wide, text);
  return wide;
}

std::string toUtf8(std::wstring_view text) {
  return utf8Of(text.data(), text.size());
}

}  // namespace pelorin
