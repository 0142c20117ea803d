// The command line of the reference host.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace pelorin::host {

enum class Source { EmbeddedDatabase, AdoConnection, OdbcDataSource };

struct Options {
  Source source = Source::EmbeddedDatabase;
  std::string database;          // file of the embedded database; empty: the user's own
  std::string connectionString;  // for the other two sources
  std::string component;         // the DLL to load, registered or not; empty: look for it
  bool play = false;
  bool undo = false;                 // removes the rows of a played request
  std::string outputFolder = "out";  // pictures of a played request
  std::string picturesFolder;        // pictures for the documents; empty: none wanted
  bool help = false;
};

// The message for the user when the command line cannot be understood.
struct OptionError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// `arguments` without the program's name, in UTF-8.
Options parseOptions(const std::vector<std::string>& arguments);

// What --help shows.
std::string usageText();

}  // namespace pelorin::host
