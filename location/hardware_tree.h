// The tree of everything that can raise an event: servers, ports, multiplexers, controllers, and
// what the other builders hang below them.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "location/controller_folders.h"
#include "location/integrated_devices.h"
#include "location/newer_family.h"

namespace pelorin {

class HardwareTree {
 public:
  HardwareTree(LocationNodes& nodes, bool newerFamily)
      : nodes_(nodes),
        newerFamilyListed_(newerFamily),
        folders_(nodes),
        newerFamily_(nodes),
        integratedDevices_(nodes) {}

  // Builds the tree anew. False when any of it failed (reported already); what stands stays.
  bool RefreshHardware();

 private:
  struct ServerFolders {
    TreeNode& serialNetwork;
    TreeNode& network;
    TreeNode& dialUp;
  };

  void addServer(TreeNode& root, const RecordSet& row);
  TreeNode& addConfiguration(TreeNode& root, const RecordSet& row, const std::string& id);
  ServerFolders addServerFolders(TreeNode& configuration, const std::string& id,
                                 const std::string& name);
  void addPorts(const ServerFolders& folders, const std::string& serverId);
  void addMultiplexers(TreeNode& port, const std::string& portId, int controllerImage);
  void addDialUpLocations(TreeNode& folder, const std::string& serverId);
  void addPanels(TreeNode& port, const std::string& portId, int image);
  void addDialUpControllers(TreeNode& location, const std::string& locationId);
  void addController(TreeNode& parent, const RecordSet& row, int image);

  LocationNodes& nodes_;
  bool newerFamilyListed_;
  ControllerFolders folders_;
  NewerFamily newerFamily_;
  IntegratedDevices integratedDevices_;
  // Controller IDs: what a multiplexer lists is not listed again by its port, and what either lists
  // not by a dial-up location, which shares the port.
  std::set<std::int32_t> onMultiplexers_;
  std::set<std::int32_t> onPorts_;
};

}  // namespace pelorin
