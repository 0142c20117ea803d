// An open result as a database adapter gives it out.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/value.h"

namespace pelorin {

// What a database adapter implements for one open result. Destroying it closes the result.
class Cursor {
 public:
  virtual ~Cursor() = default;
  virtual const std::vector<std::string>& columns() const = 0;
  // Appends up to `rows` rows to `cells` (row after row, columns().size() values each) and returns
  // how many; 0 at the end. The rows appended before an error count as read; nothing is fetched
  // after it.
  virtual std::size_t fetch(std::size_t rows, std::vector<Value>& cells) = 0;
};

}  // namespace pelorin
