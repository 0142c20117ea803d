// Reading the line-oriented source files of the site database.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelorin::site {

std::string_view trim(std::string_view text);
// Without line breaks; the last one need not end with one.
std::vector<std::string_view> lines(std::string_view text);
// Parts between separators, trimmed.
std::vector<std::string_view> split(std::string_view text, char separator);
// Takes the first word off the front of `text`, with the blanks around it.
std::string_view takeWord(std::string_view& text);

}  // namespace pelorin::site
