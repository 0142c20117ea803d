#include "site/text_lines.h"

namespace pelorin::site {

namespace {

constexpr std::string_view blanks = " \t\r";

}  // namespace

std::string_view trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string_view> lines(std::string_view text) {
  std::vector<std::string_view> result;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    result.push_back(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return result;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(trim(text.substr(0, end)));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::string_view takeWord(std::string_view& text) {
  text = trim(text);
  const std::size_t end = text.find_first_of(blanks);
  const std::string_view word = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : trim(text.substr(end));
  return word;
}

}  // namespace pelorin::site
