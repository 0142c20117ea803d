// The scripts that make a site on SQL Server, in the order in which they are run.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "site/site_database.h"

namespace pelorin::site {

struct ServerScript {
  std::string name;     // of the file
  std::string purpose;  // its first line
  // Sends the script's batches.
  std::function<void(const std::function<void(const std::string&)>&)> batches;
};

// `filling` decides what the data script holds.
std::vector<ServerScript> serverScripts(const SiteFilling& filling);

// The role that the rights script makes.
inline constexpr const char* componentRole = "PelorinComponent";

}  // namespace pelorin::site
