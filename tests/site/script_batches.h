// The batches of a server script, by the script's name.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "site/server_scripts.h"

namespace pelorin::site {

using Batches = std::vector<std::string>;

inline Batches script(const std::string& name, const SiteFilling& filling = demonstrationSite) {
  Batches batches;
  for (const ServerScript& candidate : serverScripts(filling)) {
    if (candidate.name != name) continue;
    candidate.batches([&batches](const std::string& batch) { batches.push_back(batch); });
  }
  EXPECT_FALSE(batches.empty()) << "no script " << name;
  return batches;
}

}  // namespace pelorin::site
