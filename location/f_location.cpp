#include "location/f_location.h"

#include <limits>

#include "base/current_error.h"
#include "base/text_key.h"
#include "common/guard.h"
#include "location/hardware_tree.h"
#include "location/location_text.h"
#include "location/node_images.h"
#include "location/picture_strip.h"

namespace pelorin {

namespace {

constexpr Size designClient{5145, 5820};
constexpr Size smallestWindow{4000, 3000};
constexpr std::int16_t singleMode = 1;
constexpr std::int16_t multiMode = 2;
constexpr std::int16_t helpTopic = 178;
constexpr std::int16_t formNumber = 85;

// Keys that move the selection.
bool movesOn(int keyCode) {
  return keyCode >= key_code::pageUp && keyCode <= key_code::down;
}

}  // namespace

FLocation::FLocation(Module1& module)
    : Form("FLocation", designCaption, designClient),
      module_(module),
      Localizer1(*this, module.environment(), {lblCaption, txtCaption, Label1}),
      MhStretch1(designClient) {
  lblLocation.setUseMnemonic(false);
  setResizable(smallestWindow);
  setDefaultButton(&cmdMain[okButton]);
  setCancelButton(&cmdMain[closeButton]);
  setCloseIsCancel(false);
  connectEvents();
}

void FLocation::connectEvents() {
  tvTree.onNodeClick = [this](TreeNode& node) { tvTree_NodeClick(node); };
  tvTree.onDoubleClick = [this] { tvTree_DblClick(); };
  tvTree.onKeyPress = [this](char32_t key) {
    if (key >= U' ') m_Search.typed(module_.environment().milliseconds());
  };
  lblLocation.onClick = [this] { lblLocation_Click(); };
  for (int index : {okButton, closeButton, helpButton}) {
    cmdMain[static_cast<std::size_t>(index)].onClick = [this, index] { cmdMain_Click(index); };
  }
  Localizer1.onCustomizeStart = [this] { Localizer1_CustomizeStart(); };
  Localizer1.onCustomizeEnd = [this] { Localizer1_CustomizeEnd(); };
}

void FLocation::setMode(const std::string& mode) {
  m_LocationMode = equalNoCase(mode, "singlelocation") ? singleMode : multiMode;
}

void FLocation::setParent(LocationTarget& parent) {
  m_Parent = parent.whileItLives();
  setLeader(parent.locationOwner());
}

LocationTarget& FLocation::parent(SourceLine where) const {
  const std::shared_ptr<LocationTarget> target = m_Parent.lock();
  if (!target) {
    throw RunTimeError(error_number::objectNotSet, "Object variable or With block variable not set",
                       where.line());
  }
  return *target;
}

// A step that fails is reported and does not keep the window from opening. The report's box lets
// the host run, so the window may be gone afterwards.
void FLocation::loadStep(const std::function<void()>& work) {
  if (isOpen()) guarded(module_, "FLocation.Form_Load", work);
}

void FLocation::Form_Load() {
  const HourglassPointer hourglass(module_.screen());
  Form_Resize();
  resetSelection();
  loadStep([this] {
    m_bVn8HardwareSupport = module_.NTConnection()->ZornIsVn8HardwareSupportEnabled();
  });
  loadStep([this] { m_PrevOwner = module_.screen().setOwner(*this, parent().locationOwner()); });
  loadStep([this] {
    m_GraphicsPath = module_.environment().componentFolder() + "\\Graphics\\";
    loadPictures();
  });
  loadStep([this] { buildTree(); });
  std::int16_t number = formNumber;
  loadStep([&] { LoadCustomResources(number); });
  if (isOpen()) cmdMain[okButton].setEnabled(false);
}

void FLocation::resetSelection() {
  m_SelectedNode = nullptr;
  m_AddedCount = 0;
  m_bVn8HardwareSupport = false;
  m_Search.end();
  lblLocation.setText(noLocation);
  lblLocation.setBold(false);
}

void FLocation::loadPictures() {
  ImageStrip strip = cutIntoCells(withLine(SourceLine::current(), [this] {
    return module_.environment().readPicture(m_GraphicsPath + "pcDetail.bmp");
  }));
  const int cells = strip.cells;
  tvTree.setImages(std::move(strip));
  if (cells < node_image::highest) {
    throw RunTimeError(error_number::invalidPicture,
                       "Invalid picture: \"pcDetail.bmp\" has " + std::to_string(cells) + " of " +
                           std::to_string(node_image::highest) + " pictures",
                       __LINE__);
  }
}

void FLocation::buildTree() {
  LocationNodes nodes(module_, tvTree, [this] { return isOpen(); });
  HardwareTree hardware(nodes, m_bVn8HardwareSupport);
  if (!hardware.RefreshHardware() && isOpen()) {
    module_.screen().messageBox(BoxRequest{"error in refreshhardware"});
  }
}

void FLocation::Form_Activate() {
  guarded(module_, "FLocation.Form_Activate", [this] {
    const bool single = m_LocationMode == singleMode;
    Label1.setText(single ? "Single-click to select location"
                          : "Double-click to add location to list");
    cmdMain[okButton].setVisible(single);
    cmdMain[closeButton].setText(single ? "Cancel" : "Close");
  });
}

void FLocation::Form_Resize() {
  guarded(module_, "FLocation.Form_Resize", [this] {
    const bool minimised = client().width <= 0 || client().height <= 0;
    if (minimised) return;
    MhStretch1.setExtents(client());
    placeControls();
  });
}

void FLocation::Form_Unload() {
  guarded(module_, "FLocation.Form_Unload", [this] {
    module_.screen().setOwner(*this, m_PrevOwner);
    m_Parent.reset();
    setLeader(0);
    setCustomizing(false);
    Localizer1.setEnabled(false);
  });
}

bool FLocation::Form_KeyDown(int keyCode) {
  return guardedOr(module_, "FLocation.Form_KeyDown", false, [&] {
    if (Localizer1.keyDown(keyCode)) return true;
    if (keyCode == key_code::escape) {
      leaveByKey();
      return true;
    }
    return focused() == &tvTree && treeKeyDown(keyCode);
  });
}

void FLocation::leaveByKey() {
  if (m_bCustomizing) {
    Localizer1.end();
  } else {
    cmdMain_Click(closeButton);
  }
}

bool FLocation::treeKeyDown(int keyCode) {
  if (movesOn(keyCode)) m_Search.end();
  const bool searches =
      keyCode == key_code::space && m_Search.running(module_.environment().milliseconds());
  const bool adds = keyCode == key_code::enter || keyCode == key_code::space;
  if (!adds || searches || m_LocationMode != multiMode) return false;
  tvTree.userDoubleClick();
  return true;
}

void FLocation::tvTree_NodeClick(TreeNode& node) {
  guarded(module_, "FLocation.tvTree_NodeClick", [&] {
    m_SelectedNode = &node;
    lblLocation.setBold(false);
    lblLocation.setText(isLocation(node) ? locationText(node) : noLocation);
    cmdMain[okButton].setEnabled(isLocation(node));
  });
}

void FLocation::tvTree_DblClick() {
  guarded(module_, "FLocation.tvTree_DblClick", [this] {
    if (m_LocationMode == singleMode || tvTree.selectedNode() == nullptr) return;
    m_SelectedNode = tvTree.selectedNode();
    lblLocation.setBold(false);
    if (isLocation(*m_SelectedNode)) addSelectedLocation();
  });
}

void FLocation::addSelectedLocation() {
  const TreeNode& node = *m_SelectedNode;
  const auto error = errorOf([&] { parent().addLocation(node.tag, locationText(node), node.tag); });
  // A location can be listed only once.
  if (error && error->number() == error_number::keyNotUnique) return;
  if (error) throw RunTimeError(*error);
  lblLocation.setText(lblLocation.text() + " added");
  lblLocation.setBold(true);
  if (m_AddedCount < std::numeric_limits<std::int16_t>::max()) ++m_AddedCount;
}

void FLocation::lblLocation_Click() {
  guarded(module_, "FLocation.lblLocation_Click", [this] {
    if (m_bCustomizing) customize(lblLocation);
  });
}

void FLocation::cmdMain_Click(int index) {
  guarded(module_, "FLocation.cmdMain_Click", [&] {
    if (m_bCustomizing) {
      customize(cmdMain[static_cast<std::size_t>(index)]);
    } else if (index == okButton) {
      acceptLocation();
    } else if (index == closeButton) {
      parent().setSingleLocation("", "");
      unload();
    } else {
      module_.NTConnection()->ShowHelp(helpTopic);
    }
  });
}

void FLocation::acceptLocation() {
  if (m_SelectedNode == nullptr || !isLocation(*m_SelectedNode)) return;
  parent().setSingleLocation(locationText(*m_SelectedNode), m_SelectedNode->tag);
  unload();
}

}  // namespace pelorin
