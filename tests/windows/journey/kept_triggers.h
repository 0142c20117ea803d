// The tables that the component writes, as they were found: to tell what was written, and to put
// them back for the next journey over the same site.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace pelorin::site {
class Engine;
}

namespace pelorin::test {

class KeptTriggers {
 public:
  // Of the site's file, which may be open elsewhere.
  explicit KeptTriggers(const std::string& file);

  // The rows of these tables, each with its table's name, that were not there or were others.
  std::vector<std::string> written() const;
  // How many rows are gone or others.
  std::size_t lost() const;
  // With the numbers that the next rows get.
  void restore() const;

 private:
  std::vector<std::string> rows() const;

  std::shared_ptr<site::Engine> engine_;
  std::vector<std::string> before_;
};

}  // namespace pelorin::test
