// The arguments of a statement, by their position.
#pragma once

#include <map>
#include <string>

#include "base/value.h"

namespace pelorin {

struct Argument {
  std::string name;  // where the statement passes it by name
  Value value;
};

// From 1, which is the first argument after the ID of what is written.
using Arguments = std::map<int, Argument>;

// Texts go between quotes exactly as they are; a quote inside them breaks the statement.
std::string quoted(const std::string& text);

// "21, 2, 7.5, 'text', True".
std::string argumentList(const Arguments& arguments);

}  // namespace pelorin
