// What the component adds to its error log while a test runs.
#pragma once

#include <string>
#include <vector>

namespace pelorin::test {

class ComponentLog {
 public:
  ComponentLog();
  ComponentLog(const ComponentLog&) = delete;
  ComponentLog& operator=(const ComponentLog&) = delete;
  // Leaves the log as it was found.
  ~ComponentLog();

  std::vector<std::string> newLines() const;

 private:
  std::string content() const;

  std::wstring file_;
  std::string before_;
};

}  // namespace pelorin::test
