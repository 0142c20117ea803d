// The location picker: a tree of everything that can raise an event. The operator picks one
// location (single mode) or adds any number of them (multi mode) to the form that opened it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "common/form_links.h"
#include "common/module1.h"
#include "controls/simple_controls.h"
#include "controls/tree_view.h"
#include "location/localizer.h"
#include "location/mh_stretch.h"
#include "location/search_as_you_type.h"

namespace pelorin {

class FLocation : public Form {
 public:
  explicit FLocation(Module1& module);

  // Both are set before the form is shown, and again when it is asked for while it is open.
  // "singlelocation" in any case is single mode, everything else multi mode.
  void setMode(const std::string& mode);
  // From now on the picker goes when its parent does, also before its window is owned by it.
  void setParent(LocationTarget& parent);

  // How many locations were added in multi mode since the form was opened.
  std::int16_t addedCount() const noexcept { return m_AddedCount; }

  Label lbllocationLabel{*this, "lbllocationLabel", {90, 585, 735, 195}, "Location:"};
  Label lblLocation{*this, "lblLocation", {1080, 585, 3435, 195}, noLocation};
  Label lblCaption{*this, "lblCaption", {90, 195, 960, 195}, "Caption:"};
  TextBox txtCaption{*this, "txtCaption", {1080, 135, 3435, 315}};
  Label Label1{*this, "Label1", {90, 135, 4380, 420}, "Double-click to add location to list"};
  TreeView tvTree{*this, "tvTree", {90, 810, 4965, 4335}};
  std::array<Button, 3> cmdMain{
      Button{*this, "cmdMain(0)", {2925, 5310, 1005, 375}, "OK"},
      Button{*this, "cmdMain(1)", {4050, 5310, 1005, 375}, "Close"},  // or Cancel
      Button{*this, "cmdMain(2)", {90, 5310, 1005, 375}, "&Help"}};

  void Form_Load() override;
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_Unload() override;
  bool Form_KeyDown(int keyCode) override;

 private:
  static constexpr const char* designCaption = "Select Locations";
  static constexpr const char* noLocation = "<None>";
  // Of cmdMain.
  static constexpr int okButton = 0;
  static constexpr int closeButton = 1;
  static constexpr int helpButton = 2;

  void connectEvents();
  void loadStep(const std::function<void()>& work);
  void resetSelection();
  void loadPictures();
  void buildTree();
  void LoadCustomResources(std::int16_t& number);
  void customize(Control& control);
  void setCustomizing(bool customizing);
  void Localizer1_CustomizeStart();
  void Localizer1_CustomizeEnd();
  void placeControls();

  // Escape.
  void leaveByKey();
  // True when the tree shall not see the key.
  bool treeKeyDown(int keyCode);
  void tvTree_NodeClick(TreeNode& node);
  void tvTree_DblClick();
  void addSelectedLocation();
  void lblLocation_Click();
  void cmdMain_Click(int index);
  void acceptLocation();

  // The form that opened the picker. Error 91 when there is none, or none any more.
  LocationTarget& parent(SourceLine where = SourceLine::current()) const;

  Module1& module_;
  std::weak_ptr<LocationTarget> m_Parent;
  std::int16_t m_LocationMode = 2;
  TreeNode* m_SelectedNode = nullptr;
  std::int16_t m_AddedCount = 0;
  WindowHandle m_PrevOwner = 0;
  std::string m_GraphicsPath;
  bool m_bVn8HardwareSupport = false;
  bool m_bCustomizing = false;
  Control* m_CustomizeTarget = nullptr;
  SearchAsYouType m_Search;
  Localizer Localizer1;
  MhStretch MhStretch1;
};

}  // namespace pelorin
