#include "location/hardware_tree.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/text_key.h"
#include "location/node_images.h"
#include "location/upper_case.h"

namespace pelorin {

namespace {

constexpr std::int32_t dialUpFolderText = 1843;

// Port types whose controllers show as network controllers.
constexpr std::array<std::int32_t, 0> networkControllerPortTypes{};

int controllerImage(std::int32_t portType) {
  const auto& types = networkControllerPortTypes;
  const bool listed = std::find(types.begin(), types.end(), portType) != types.end();
  return listed ? node_image::networkController : node_image::controller;
}

std::string_view withoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool onNetwork(std::string_view portStyle) {
  return equalNoCase(withoutBlanks(portStyle), "Vollo");
}

std::string idText(const RecordSet& row, std::string_view field) {
  return numberText(std::int64_t{row.int32(field)});
}

// At least three digits.
std::string siteNumberText(std::int32_t site) {
  const std::string digits = std::to_string(std::abs(std::int64_t{site}));
  const std::string zeros(digits.size() < 3 ? 3 - digits.size() : 0, '0');
  return (site < 0 ? "-" : "") + zeros + digits;
}

// 0, which has no folders, for what does not fit into a byte.
std::uint8_t controllerType(const RecordSet& row) {
  const double type = toReal(row.value("Controller_Type"));
  const bool fits = type >= 0 && type <= std::numeric_limits<std::uint8_t>::max();
  return fits ? static_cast<std::uint8_t>(type) : std::uint8_t{0};
}

}  // namespace

bool HardwareTree::RefreshHardware() {
  const bool ended = guarded(nodes_.module(), "RefreshHardware", [this] {
    TreeView& tree = nodes_.tree();
    while (!tree.roots().empty()) tree.remove(*tree.roots().back());
    TreeNode& root = nodes_.add(nullptr, folderTexts("SA", " Hardware"));
    tree.expand(root);
    RecordSet servers = nodes_.rows("SELECT * From Servers");
    while (servers.next()) addServer(root, servers);
  });
  return ended && nodes_.complete();
}

void HardwareTree::addServer(TreeNode& root, const RecordSet& row) {
  const std::int32_t server = row.int32(0);
  const std::string id = numberText(std::int64_t{server});
  const std::string name = " (" + upperCase(row.text("Server_Name")) + ")";
  TreeNode& configuration = addConfiguration(root, row, id);
  TreeNode& serverInterface =
      nodes_.add(&root, folderTexts("IF" + id, " Interface Configuration" + name));
  if (newerFamilyListed_) {
    newerFamily_.RefreshVn8Hardware(
        server, nodes_.add(&root, folderTexts("Zorn" + id, " Zorn Configuration" + name)));
  }
  const ServerFolders folders = addServerFolders(configuration, id, name);
  addPorts(folders, id);
  addDialUpLocations(folders.dialUp, id);
  integratedDevices_.RefreshIntegratedDevices(server, serverInterface);
}

TreeNode& HardwareTree::addConfiguration(TreeNode& root, const RecordSet& row,
                                         const std::string& id) {
  const std::string name = upperCase(row.text("Server_Name"));
  const std::string address = R"(\\)" + name + "." + siteNumberText(row.int32("Site_ID"));
  return nodes_.add(&root, folderTexts("LA" + id, " Lumet Configuration (" + name + ")", address));
}

HardwareTree::ServerFolders HardwareTree::addServerFolders(TreeNode& configuration,
                                                           const std::string& id,
                                                           const std::string& name) {
  TreeNode& serialNetwork = nodes_.add(&configuration, folderTexts("YA" + id, "PAMBA" + name));
  TreeNode& network = nodes_.add(&configuration, folderTexts("JA" + id, "VOLLO" + name));
  TreeNode& dialUp =
      nodes_.add(&configuration, folderTexts("MA" + id, nodes_.module().GRS(dialUpFolderText)));
  return {serialNetwork, network, dialUp};
}

void HardwareTree::addPorts(const ServerFolders& folders, const std::string& serverId) {
  RecordSet ports = nodes_.rows("EXECUTE sp_FetchServerPorts " + serverId);
  while (ports.next()) {
    TreeNode& folder = onNetwork(ports.text("PortStyle")) ? folders.network : folders.serialNetwork;
    TreeNode& port = nodes_.add(
        &folder, {"PA" + ports.text(0), ports.text(1), ports.text("Address"), node_image::port});
    const std::string portId = idText(ports, "PortID");
    const int image = controllerImage(ports.int32("PortType"));
    addMultiplexers(port, portId, image);
    addPanels(port, portId, image);
  }
}

void HardwareTree::addPanels(TreeNode& port, const std::string& portId, int image) {
  RecordSet panels = nodes_.rows("EXECUTE sp_FetchPortPanels " + portId);
  while (panels.next()) {
    const std::int32_t controller = panels.int32("Controller_ID");
    if (onMultiplexers_.contains(controller)) continue;
    onPorts_.insert(controller);
    addController(port, panels, image);
  }
}

void HardwareTree::addMultiplexers(TreeNode& port, const std::string& portId, int controllerImage) {
  RecordSet multiplexers = nodes_.rows("sp_FetchKumbos " + portId);
  while (multiplexers.next()) {
    const std::string id = idText(multiplexers, "KumboID");
    TreeNode& multiplexer =
        nodes_.add(&port, {"AA" + id, multiplexers.text("KumboName"), multiplexers.text("Address"),
                           node_image::multiplexer});
    RecordSet controllers = nodes_.rows("EXECUTE sp_FetchKumboControllers " + id);
    while (controllers.next()) {
      onMultiplexers_.insert(controllers.int32("Controller_ID"));
      addController(multiplexer, controllers, controllerImage);
    }
  }
}

void HardwareTree::addDialUpLocations(TreeNode& folder, const std::string& serverId) {
  RecordSet locations = nodes_.rows("Select * From DialupLocations Where ServerID = " + serverId +
                                    " Order By LocationName");
  while (locations.next()) {
    const std::string id = idText(locations, "LocationID");
    TreeNode& location = nodes_.add(
        &folder, {"MD" + id, locations.text("LocationName"), "", node_image::dialUpLocation});
    addDialUpControllers(location, id);
  }
}

void HardwareTree::addDialUpControllers(TreeNode& location, const std::string& locationId) {
  RecordSet controllers = nodes_.rows(
      "Select * from Controllers Where PortID IN (Select PortID From DialupLocations Where "
      "LocationID = " +
      locationId + ")");
  while (controllers.next()) {
    const std::int32_t controller = controllers.int32("Controller_ID");
    const bool listed = onMultiplexers_.contains(controller) || onPorts_.contains(controller);
    if (!listed) addController(location, controllers, node_image::controller);
  }
}

void HardwareTree::addController(TreeNode& parent, const RecordSet& row, int image) {
  const std::int32_t id = row.int32("Controller_ID");
  TreeNode& controller =
      nodes_.add(&parent, {"CA" + numberText(std::int64_t{id}), row.text("Controller_Name"),
                           row.text("Address"), image});
  folders_.AddControllerFolders(controllerType(row), id, controller);
}

}  // namespace pelorin
