#include "location/newer_family.h"

#include <string>

#include "location/node_images.h"

namespace pelorin {

namespace {

constexpr const char* procedureName = "FLocation.RefreshVn8Hardware";

struct FamilyFolder {
  const char* text;
  const char* keyPrefix;
  const char* beforeController;
  const char* afterController;
  const char* itemPrefix;
  const char* idField;
  int image;
};

// "Zurn" in the last three item prefixes is deliberate.
constexpr FamilyFolder familyFolders[] = {
    {"Doors", "ZornDOORS",
     "Select [Name], DoorID, [Index], [Address] From Zorn_Doors Where ModuleID IN (Select ID from "
     "Zorn_Modules Where ControllerID = ",
     ")", "ZornDR", "DoorID", node_image::door},
    {"Inputs", "ZornINPUTS",
     "Select * From Zorn_Inputs Where ModuleID IN (Select ID from Zorn_Modules Where ControllerID "
     "= ",
     ")", "ZornINP", "InputID", node_image::input},
    {"Relays", "ZornRELAYS",
     "Select [Name], RelayID, [Index], [Address], [RelayType] From Zorn_Relays Where (RelayType = "
     "2 OR RelayType = 4) AND ModuleID IN (Select ID from Zorn_Modules Where ControllerID = ",
     ")", "ZurnRY", "RelayID", node_image::relay},
    {"Reader Locations", "ZornREADERS",
     "Select [Name], ReaderID, [Index], [Address] From Zorn_Readers Where ControllerID = ", "",
     "ZurnRDR", "ReaderID", node_image::reader},
    {"Modules", "ZornMODULES",
     "Select [Name], ID, [Address] From Zorn_Modules Where ControllerID = ", "", "ZurnMOD", "ID",
     node_image::multiplexer},
};

void addFolder(LocationNodes& nodes, TreeNode& controller, const FamilyFolder& folder,
               const std::string& controllerId) {
  TreeNode& node =
      nodes.add(&controller, folderTexts(folder.keyPrefix + controllerId, folder.text));
  RecordSet rows = nodes.rows(folder.beforeController + controllerId + folder.afterController);
  while (rows.next()) {
    nodes.add(&node, {folder.itemPrefix + rows.text(folder.idField), rows.text("Name"),
                      rows.text("Address"), folder.image, folder.image});
  }
}

}  // namespace

void NewerFamily::RefreshVn8Hardware(std::int32_t serverId, TreeNode& server) {
  nodes_.building(procedureName, [&] {
    RecordSet rows = nodes_.rows("Select * from Zorn_Controllers Where ServerID = " +
                                 numberText(std::int64_t{serverId}) + " Order By [Name]");
    while (rows.next()) {
      nodes_.building(procedureName, [&] { addController(server, rows); });
    }
  });
}

void NewerFamily::addController(TreeNode& server, const RecordSet& row) {
  const std::string id = numberText(std::int64_t{row.int32("ID")});
  TreeNode& controller = nodes_.add(
      &server, {"ZornCTLR" + id, row.text("Name"), row.text("Address"), node_image::controller});
  for (const FamilyFolder& folder : familyFolders) addFolder(nodes_, controller, folder, id);
}

}  // namespace pelorin
