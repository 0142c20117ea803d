// The hardware of the newer controller family.
#pragma once

#include <cstdint>

#include "location/location_nodes.h"

namespace pelorin {

class NewerFamily {
 public:
  explicit NewerFamily(LocationNodes& nodes) : nodes_(nodes) {}

  // Adds the server's controllers with their five folders below `server`.
  void RefreshVn8Hardware(std::int32_t serverId, TreeNode& server);

 private:
  void addController(TreeNode& server, const RecordSet& row);

  LocationNodes& nodes_;
};

}  // namespace pelorin
