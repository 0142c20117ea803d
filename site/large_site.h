// Makes sites of any size, always the same for the same numbers.
#pragma once

#include "site/site_database.h"

namespace pelorin {

struct SiteSize {
  int controllers = 0;
  int locations = 0;  // doors, inputs, relays and readers, spread over the controllers
  int triggers = 0;   // half for CCTV, half for recorders
  int events = 0;     // besides those of the bare site, spread over the ordinary categories
};

// The bare site with generated hardware, devices, events and triggers.
SiteFilling largeSite(const SiteSize& size);

}  // namespace pelorin
