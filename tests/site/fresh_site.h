// A demonstration site for each test, filled once for all tests of a program.
#pragma once

#include "site/site_database.h"

namespace pelorin::test {

inline SiteDatabase freshDemonstration() {
  static const SiteDatabase filled = SiteDatabase::inMemory(demonstrationSite);
  return filled.copyInMemory();
}

}  // namespace pelorin::test
