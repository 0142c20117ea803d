#include "base/text_key.h"

#include <algorithm>
#include <cstdint>

namespace pelorin {

namespace {

char lower(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool equalNoCase(std::string_view left, std::string_view right) noexcept {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

std::string lowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

std::size_t NoCaseHash::operator()(std::string_view text) const {
  std::uint64_t hash = 14695981039346656037U;
  for (char c : text) hash = (hash ^ static_cast<unsigned char>(lower(c))) * 1099511628211U;
  return static_cast<std::size_t>(hash);
}

}  // namespace pelorin
