// The folders under a controller and what stands in them.
#pragma once

#include <cstdint>
#include <optional>

#include "location/expansion_rules.h"
#include "location/folder_queries.h"
#include "location/location_nodes.h"

namespace pelorin {

class ControllerFolders {
 public:
  explicit ControllerFolders(LocationNodes& nodes) : nodes_(nodes) {}

  // Adds the folders that suit the controller's type, each filled at once.
  void AddControllerFolders(std::uint8_t controllerType, std::int32_t controllerId,
                            TreeNode& controller);
  // Fills a folder; its key says with what, and of which controller.
  void AddFolderInfo(TreeNode& folder);

 private:
  std::optional<PanelSetup> panelSetup(ItemRule rule, std::int32_t controllerId) const;
  void addItems(TreeNode& folder, const FolderQuery& query, std::int32_t controllerId);

  LocationNodes& nodes_;
};

}  // namespace pelorin
