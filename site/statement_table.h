// Every statement that the component can send, with the columns it reads from the result. Both
// engines are checked against this table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelorin::site {

struct SiteStatement {
  std::string name;
  std::string text;                  // with sample values in its places
  std::vector<std::string> columns;  // read by name; "#0" is read by position
  bool writes = false;
};

// One entry is
//
//   statement <name> [writes]
//     "<text with {places}>"
//     {place} = <sample>
//     columns A, B
std::vector<SiteStatement> readStatements(std::string_view text);

const std::vector<SiteStatement>& siteStatements();

}  // namespace pelorin::site
