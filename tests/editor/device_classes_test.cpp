// The combo of device classes, and the panel that goes with each.
#include "editor/device_classes.h"

#include "editor/cctv/cctv_panel.h"
#include "editor/dvr/dvr_panel.h"
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

class DeviceClassesTest : public ::testing::Test, protected EditorSite {
 protected:
  TabControl tabs{noParent, "SSTab1", {0, 0, 1000, 1000}, {"&Trigger", "&Action"}};
  ActionPanels panels;
  Frame& cctv = add(std::make_unique<CctvPanel>(module, catalogue, tabs.page(1)));
  Frame& dvr = add(std::make_unique<DvrPanel>(module, tabs.page(1)));
  DeviceClasses classes{module, tabs.page(1), panels};
  ComboBox& combo = classes.cmbActionDeviceClass;

  void SetUp() override { tabs.setTab(1); }
  Frame& add(std::unique_ptr<ActionPanel> panel) {
    panels.push_back(std::move(panel));
    return panels.back()->frame();
  }
  void load() { classes.LoadDeviceClassCombo(combo); }
};

TEST_F(DeviceClassesTest, OffersCctvAndTheRecorderClassAlone) {
  load();
  EXPECT_THAT(texts(combo), ElementsAre("CCTV", "DVR / NVR"));
  EXPECT_EQ(combo.row(0).itemData, 999);
  EXPECT_EQ(combo.row(1).itemData, 1);
  EXPECT_THAT(database->statements(), ElementsAre("select * from IntegratedDeviceclasses"));
}

TEST_F(DeviceClassesTest, FillingSelectsCctvWithoutShowingAPanel) {
  load();
  EXPECT_EQ(combo.listIndex(), 0);
  EXPECT_FALSE(cctv.visible());
  EXPECT_FALSE(dvr.visible());
}

TEST_F(DeviceClassesTest, FillingAgainStartsAnew) {
  load();
  load();
  EXPECT_EQ(combo.listCount(), 2);
}

TEST_F(DeviceClassesTest, AnEmptyTableLeavesCctv) {
  database->answer("select * from IntegratedDeviceclasses",
                   {{"IntegratedDeviceClassId", "Classname"}, {}});
  load();
  EXPECT_THAT(texts(combo), ElementsAre("CCTV"));
  EXPECT_EQ(combo.listIndex(), 0);
}

TEST_F(DeviceClassesTest, AFailingStatementKeepsCctvAndTheOperatorCanGoOn) {
  database->fail("select * from IntegratedDeviceclasses", "no table");
  load();
  EXPECT_THAT(texts(combo), ElementsAre("CCTV"));
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_TRUE(screen.boxes[0].text.starts_with("frmTriggerAction.LoadDeviceClassCombo: Line: "));
  combo.userSelect(0);
  EXPECT_TRUE(cctv.visible());
}

TEST_F(DeviceClassesTest, PickingAClassShowsItsPanelAlone) {
  load();
  combo.userSelect(1);
  EXPECT_TRUE(dvr.visible());
  EXPECT_FALSE(cctv.visible());
  combo.userSelect(0);
  EXPECT_TRUE(cctv.visible());
  EXPECT_FALSE(dvr.visible());
}

TEST_F(DeviceClassesTest, DisplayingAClassSelectsItAndShowsItsPanel) {
  load();
  classes.DisplayDeviceAction(1);
  EXPECT_EQ(combo.listIndex(), 1);
  EXPECT_TRUE(dvr.visible());
  EXPECT_FALSE(cctv.visible());
}

TEST_F(DeviceClassesTest, DisplayingNoClassHidesBothPanelsAndKeepsTheSelection) {
  load();
  classes.DisplayDeviceAction(999);
  classes.DisplayDeviceAction(0);
  EXPECT_FALSE(cctv.visible());
  EXPECT_FALSE(dvr.visible());
  EXPECT_EQ(combo.listIndex(), 0);
}

TEST_F(DeviceClassesTest, AClassThatIsNotOfferedShowsNoPanel) {
  load();
  classes.DisplayDeviceAction(5);
  EXPECT_FALSE(cctv.visible());
  EXPECT_FALSE(dvr.visible());
}

TEST_F(DeviceClassesTest, WithoutASelectionTheClassIsNone) {
  EXPECT_EQ(classes.selectedClass(), 0);
}

}  // namespace
}  // namespace pelorin::test
