#include "location/controller_folders.h"

#include <string>
#include <utility>
#include <vector>

#include "location/node_images.h"

namespace pelorin {

namespace {

struct Folder {
  const char* text;
  const char* prefix;
};

constexpr Folder doors{"Doors", "TA"};
constexpr Folder inputs{"Inputs", "IA"};
constexpr Folder readers{"Readers", "RA"};
constexpr Folder relays{"Relays", "OA"};
constexpr Folder virtualRelays{"Virtual Relays", "OX"};
constexpr Folder expansionInputs{"Expansion Inputs", "IX"};
constexpr Folder expansionRelays{"Expansion Relays", "OX"};

std::vector<Folder> foldersOf(std::uint8_t controllerType) {
  switch (controllerType) {
    case 7:
      return {doors, inputs, readers, relays, virtualRelays};
    case 3:
    case 4:
    case 8:
    case 9:
    case 11:
    case 15:
      return {doors, expansionInputs, expansionRelays, inputs, readers, relays};
    case 5:
    case 6:
      return {expansionInputs, expansionRelays, readers};
    default:
      return {};
  }
}

PanelSetup readSetup(const RecordSet& row, ItemRule rule) {
  PanelSetup setup;
  if (rule == ItemRule::ExpansionInputs) {
    setup.nxinputs = row.int32("nxinputs");
    return setup;
  }
  setup.ef_reb64 = row.boolean("ef_reb64");
  for (std::size_t board = 0; board < setup.ef_reb.size(); ++board) {
    setup.ef_reb[board] = row.boolean("ef_reb" + std::to_string(board + 1));
  }
  return setup;
}

std::optional<int> itemImage(const FolderQuery& query, const std::optional<PanelSetup>& setup,
                             const RecordSet& row) {
  switch (query.rule) {
    case ItemRule::ExpansionInputs:
      return expansionInputImage(setup, row.int32("InputIndex"));
    case ItemRule::ExpansionRelays:
      return expansionRelayImage(setup, row.int32("OutputIndex"));
    case ItemRule::All:
      break;
  }
  return query.image;
}

}  // namespace

void ControllerFolders::AddControllerFolders(std::uint8_t controllerType, std::int32_t controllerId,
                                             TreeNode& controller) {
  nodes_.building("AddControllerFolders", [&] {
    for (const Folder& folder : foldersOf(controllerType)) {
      AddFolderInfo(nodes_.add(
          &controller,
          folderTexts(folder.prefix + numberText(std::int64_t{controllerId}), folder.text)));
    }
  });
}

void ControllerFolders::AddFolderInfo(TreeNode& folder) {
  nodes_.building("AddFolderInfo", [&] {
    const std::string_view key = folder.key;
    const FolderQuery* query = folderQuery(key.substr(0, 2));
    if (query != nullptr) addItems(folder, *query, parseInt32(key.substr(2)));
  });
}

std::optional<PanelSetup> ControllerFolders::panelSetup(ItemRule rule,
                                                        std::int32_t controllerId) const {
  if (rule == ItemRule::All) return std::nullopt;
  RecordSet setups = nodes_.rows("Select * From PanelBasicSetups Where ControllerID = " +
                                 numberText(std::int64_t{controllerId}));
  std::optional<PanelSetup> setup;
  while (setups.next()) {
    if (!setup) setup = readSetup(setups, rule);
  }
  return setup;
}

void ControllerFolders::addItems(TreeNode& folder, const FolderQuery& query,
                                 std::int32_t controllerId) {
  const std::optional<PanelSetup> setup = panelSetup(query.rule, controllerId);
  RecordSet rows = nodes_.rows(query.statement(controllerId));
  while (rows.next()) {
    const std::optional<int> image = itemImage(query, setup, rows);
    if (!image) continue;
    nodes_.add(&folder, {std::string(query.itemPrefix) + rows.text(0), rows.text(query.textField),
                         rows.text("Address"), *image, *image});
  }
}

}  // namespace pelorin
