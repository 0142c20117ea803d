#include "host/odbc/odbc_text.h"

#include "base/utf.h"

namespace pelorin::host {

std::vector<SQLWCHAR> wideText(std::string_view text) {
  std::vector<SQLWCHAR> result;
  result.reserve(text.size() + 1);
  appendUtf16(result, text);
  result.push_back(0);
  return result;
}

std::string utf8Text(const SQLWCHAR* text, std::size_t length) {
  return utf8Of(text, length);
}

}  // namespace pelorin::host
