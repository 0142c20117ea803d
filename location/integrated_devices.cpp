#include "location/integrated_devices.h"

#include <string>

#include "location/node_images.h"

namespace pelorin {

namespace {

// A tag that begins like this shows the address but makes the node a grouping.
constexpr const char* groupingMark = "!";

std::string idText(const RecordSet& row) {
  return numberText(std::int64_t{row.int32("ID")});
}

NodeTexts deviceTexts(std::string key, std::string text, std::string tag, int image) {
  return {std::move(key), std::move(text), std::move(tag), image, image};
}

}  // namespace

void IntegratedDevices::RefreshIntegratedDevices(std::int32_t serverId, TreeNode& serverInterface) {
  nodes_.building("FLocation.RefreshIntegratedDevices", [&] {
    const std::string server = numberText(std::int64_t{serverId});
    PopulateDVRNodes(nodes_.add(&serverInterface, folderTexts("ID-DVR" + server, "DVR")), serverId);
    addCentralStations(serverId, serverInterface);
  });
}

void IntegratedDevices::addCentralStations(std::int32_t serverId, TreeNode& serverInterface) {
  const std::string server = numberText(std::int64_t{serverId});
  TreeNode& stations =
      nodes_.add(&serverInterface, folderTexts("ID-CentralStations" + server, "Central Stations"));
  RecordSet rows = nodes_.rows(
      "select ClassName, ClassAddressAbreviation from integratedDeviceclasses where "
      "ClassAddressAbreviation = 'CSR'");
  bool listed = false;
  while (rows.next()) {
    // A second row would list the same receivers and accounts again.
    if (listed) continue;
    listed = true;
    addReceivers(serverId, stations, rows.text("Classname"));
  }
}

void IntegratedDevices::addReceivers(std::int32_t serverId, TreeNode& stations,
                                     const std::string& className) {
  const std::string server = numberText(std::int64_t{serverId});
  PopulateCSRNodes(nodes_.add(&stations, folderTexts("ID-CSR" + server, className)), serverId);
  PopulateCSRAccounts(
      nodes_.add(&stations, folderTexts("CSRACCOUNTS" + server, "Account Management")), serverId);
}

void IntegratedDevices::PopulateDVRNodes(TreeNode& folder, std::int32_t serverId) {
  nodes_.populating("FLocation.PopulateDVRNodes", [&] {
    RecordSet rows = nodes_.rows("select * from DVR_Config where Serverid = " +
                                 numberText(std::int64_t{serverId}) + " order by DVRName");
    while (rows.next()) {
      const std::string id = idText(rows);
      addCameras(
          nodes_.add(&folder, deviceTexts("DVR" + id, rows.text("DVRName"),
                                          rows.text("GlobalAddressID"), node_image::recorder)),
          id);
    }
  });
}

void IntegratedDevices::addCameras(TreeNode& unit, const std::string& unitId) {
  RecordSet rows = nodes_.rows("select * from DVR_cameras where ID_DVR_Config = " + unitId +
                               " order by CameraIndex");
  while (rows.next()) {
    nodes_.add(&unit, deviceTexts("DVRCAM" + idText(rows), rows.text("CameraName"),
                                  rows.text("GlobalAddressID"), node_image::camera));
  }
}

void IntegratedDevices::PopulateCSRNodes(TreeNode& parent, std::int32_t serverId) {
  nodes_.populating("FLocation.PopulateCSRNodes", [&] {
    RecordSet rows =
        nodes_.rows("select ID, CSRName, GlobalAddressId from CSR_Config where serverID = " +
                    numberText(std::int64_t{serverId}) + " order by CSRName");
    while (rows.next()) {
      nodes_.add(&parent, deviceTexts("CSR" + idText(rows), rows.text("CSRName"),
                                      rows.text("GlobalAddressId"), node_image::receiver));
    }
  });
}

void IntegratedDevices::PopulateCSRAccounts(TreeNode& parent, std::int32_t serverId) {
  nodes_.populating("FLocation.PopulateCSRAccounts", [&] {
    RecordSet rows =
        nodes_.rows("select ID, AccountName, GlobalAddressId from CSR_Accounts where serverid = " +
                    numberText(std::int64_t{serverId}) + " order by AccountName");
    while (rows.next()) {
      const std::string id = idText(rows);
      PopulateCSRAreas(nodes_.add(&parent, deviceTexts("CSRAccount" + id, rows.text("AccountName"),
                                                       groupingMark + rows.text("GlobalAddressId"),
                                                       node_image::account)),
                       id);
    }
  });
}

void IntegratedDevices::PopulateCSRAreas(TreeNode& account, const std::string& accountId) {
  nodes_.populating("FLocation.PopulateCSRAreas", [&] {
    // The blank at the end belongs to the statement.
    RecordSet rows = nodes_.rows(
        "select ID, AreaName, GlobalAddressId from CSR_Areas where ID_CSR_Accounts = " + accountId +
        " order by AreaName ");
    while (rows.next()) {
      const std::string id = idText(rows);
      PopulateCSRPoints(
          nodes_.add(&account,
                     deviceTexts("CSRArea" + id, rows.text("AreaName"),
                                 groupingMark + rows.text("GlobalAddressId"), node_image::area)),
          accountId, id);
    }
  });
}

void IntegratedDevices::PopulateCSRPoints(TreeNode& area, const std::string& accountId,
                                          const std::string& areaId) {
  nodes_.populating("FLocation.PopulateCSRPoints", [&] {
    RecordSet rows = nodes_.rows(
        "select ID, PointName, GlobalAddressId from CSR_Points where ID_CSR_Accounts = " +
        accountId + " and ID_CSR_Areas = " + areaId + " order by PointName");
    while (rows.next()) {
      nodes_.add(&area, deviceTexts("CSRPoint" + idText(rows), rows.text("PointName"),
                                    rows.text("GlobalAddressId"), node_image::point));
    }
  });
}

}  // namespace pelorin
