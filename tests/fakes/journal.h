// What happened on the outside, in order: statements, host calls and boxes, one line each.
#pragma once

#include <string>
#include <vector>

namespace pelorin::test {

class Journal {
 public:
  void add(std::string line) { lines_.push_back(std::move(line)); }
  const std::vector<std::string>& lines() const { return lines_; }
  void clear() { lines_.clear(); }

  // The lines that start with `prefix`, without it.
  std::vector<std::string> of(const std::string& prefix) const {
    std::vector<std::string> found;
    for (const std::string& line : lines_) {
      if (line.starts_with(prefix)) found.push_back(line.substr(prefix.size()));
    }
    return found;
  }

 private:
  std::vector<std::string> lines_;
};

}  // namespace pelorin::test
