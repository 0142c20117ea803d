// Every statement that the component can send, with the columns it reads from the result. Both
// engines are checked against this table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelorin::site {

// What differs from one sending to the next: a number or a name, or all that stands between quotes.
struct StatementPlace {
  std::string name;  // with its braces
  std::string sample;
};

struct SiteStatement {
  std::string name;
  std::string pattern;  // word for word as it is sent but for its places
  std::vector<StatementPlace> places;
  std::string text;                  // with sample values in its places
  std::vector<std::string> columns;  // read by name; "#0" is read by position
  bool writes = false;
  // Sent as a command with parameters: `text` gives each parameter of the procedure a value.
  bool command = false;
};

// One entry is
//
//   statement <name> [writes]
//     "<text with {places}>"
//     {place} = <sample>
//     columns A, B
//
// or, with a procedure's name and sample values,
//
//   command <name> [writes]
//     "<procedure> <values>"
std::vector<SiteStatement> readStatements(std::string_view text);

const std::vector<SiteStatement>& siteStatements();

}  // namespace pelorin::site
