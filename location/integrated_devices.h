// A server's recorders with their cameras, and its central-station receivers with their accounts,
// areas and points.
#pragma once

#include <cstdint>

#include "location/location_nodes.h"

namespace pelorin {

class IntegratedDevices {
 public:
  explicit IntegratedDevices(LocationNodes& nodes) : nodes_(nodes) {}

  // Builds the whole branch below the server's interface node, depth first.
  void RefreshIntegratedDevices(std::int32_t serverId, TreeNode& serverInterface);

 private:
  void addCentralStations(std::int32_t serverId, TreeNode& serverInterface);
  void addReceivers(std::int32_t serverId, TreeNode& stations, const std::string& className);
  void PopulateDVRNodes(TreeNode& folder, std::int32_t serverId);
  void addCameras(TreeNode& unit, const std::string& unitId);
  void PopulateCSRNodes(TreeNode& parent, std::int32_t serverId);
  void PopulateCSRAccounts(TreeNode& parent, std::int32_t serverId);
  void PopulateCSRAreas(TreeNode& account, const std::string& accountId);
  void PopulateCSRPoints(TreeNode& area, const std::string& accountId, const std::string& areaId);

  LocationNodes& nodes_;
};

}  // namespace pelorin
