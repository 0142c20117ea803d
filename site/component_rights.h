// What the component must be allowed to do in the database, found from what it sends.
#pragma once

#include <set>
#include <string>

namespace pelorin::site {

struct ComponentRights {
  std::set<std::string> read;     // tables
  std::set<std::string> remove;   // tables
  std::set<std::string> execute;  // procedures
};

ComponentRights componentRights();

}  // namespace pelorin::site
