#include "location/folder_queries.h"

#include <algorithm>

#include "base/value.h"
#include "location/node_images.h"

namespace pelorin {

namespace {

constexpr FolderQuery folderQueries[] = {
    {"TA",
     "SELECT DoorID, DoorName, DoorIndex, Address FROM Doors WHERE Active = 1 AND Visible = 1 AND "
     "ControllerID = ",
     " ORDER BY DoorName ", "TT", "DoorName", node_image::door},
    {"IA", "Select * From Inputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = ", "",
     "II", "Name", node_image::input},
    {"OA", "Select * From Outputs Where BelongToDoor = 0 and Visible = 1 and ControllerID = ",
     " Order By [Index]", "OO", "Name", node_image::relay},
    {"RA", "Select * From Readers Where BelongToDoor = 0 and ControllerID = ", " Order by [Name]",
     "RR", "Name", node_image::reader},
    {"XD", "Select * From CCTV_Cameras Where SwitcherID = ", "", "CC", "Name", node_image::camera},
    {"IX", "Select * from ExpInputs Where ControllerID = ", " Order By InputIndex", "XI", "Name", 0,
     ItemRule::ExpansionInputs},
    {"OX", "Select * from ExpOutputs Where ControllerID =", " Order By OutputIndex", "XO", "Name",
     0, ItemRule::ExpansionRelays},
};

}  // namespace

std::string FolderQuery::statement(std::int32_t controllerId) const {
  std::string sql(beforeController);
  sql += numberText(std::int64_t{controllerId});
  return sql.append(afterController);
}

const FolderQuery* folderQuery(std::string_view folderPrefix) {
  const auto* found = std::find_if(
      std::begin(folderQueries), std::end(folderQueries),
      [folderPrefix](const FolderQuery& query) { return query.folderPrefix == folderPrefix; });
  return found == std::end(folderQueries) ? nullptr : found;
}

}  // namespace pelorin
