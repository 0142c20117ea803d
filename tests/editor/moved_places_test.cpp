// Controls that take each other's places, seen on controls that were somewhere else before.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

class MovedPlacesTest : public EditorTest {
 protected:
  static constexpr Place elsewhere{17, 23, 1234, 567};

  frmTriggerAction& make(const EditorRequest& request) {
    answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0});
    editor = std::make_unique<frmTriggerAction>(
        module, catalogue, request, [] {}, nullptr);
    return *editor;
  }
};

TEST_F(MovedPlacesTest, TheOverlayTakesTheCornerOfTheEventListAndKeepsItsSize) {
  for (const char* moved : {"fraEditOverlay", "lvwEvents"}) {
    make({5, device_class::cctv});
    control<Control>(moved).setPlace(elsewhere);
    const Place list = control<Control>("lvwEvents").place();
    const Place overlay = control<Control>("fraEditOverlay").place();
    screen.show(*editor);
    EXPECT_EQ(control<Control>("lvwEvents").place(), list);
    EXPECT_EQ(control<Control>("fraEditOverlay").place(),
              (Place{list.left, list.top, overlay.width, overlay.height}));
    editor->unload();
  }
}

TEST_F(MovedPlacesTest, TheRecordersPanelTakesTheCornerOfTheSwitchersAndKeepsItsSize) {
  for (const char* moved : {"fraDVRAction", "fraCCTVAction"}) {
    make({});
    control<Control>(moved).setPlace(elsewhere);
    const Place cctv = control<Control>("fraCCTVAction").place();
    const Place dvr = control<Control>("fraDVRAction").place();
    screen.show(*editor);
    EXPECT_EQ(control<Control>("fraCCTVAction").place(), cctv);
    EXPECT_EQ(control<Control>("fraDVRAction").place(),
              (Place{cctv.left, cctv.top, dvr.width, dvr.height}));
    editor->unload();
  }
}

TEST_F(MovedPlacesTest, TheAlarmControlsTakeTheCornersOfTheCameraControls) {
  make({});
  control<Control>("cmbCCTVCameras").setPlace({11, 12, 1300, 330});
  control<Control>("cmbCCTVPresets").setPlace({21, 22, 2300, 330});
  control<Control>("lblCCTVCamAction(2)").setPlace({31, 32, 3300, 255});
  const Place alarm = control<Control>("txtCCTVAlarm").place();
  const Place returnToNormal = control<Control>("chkCCTVAutoRTNTriggers").place();
  const Place label = control<Control>("lblCCTVAlarm").place();
  screen.show(*editor);
  EXPECT_EQ(control<Control>("txtCCTVAlarm").place(), (Place{11, 12, alarm.width, alarm.height}));
  EXPECT_EQ(control<Control>("chkCCTVAutoRTNTriggers").place(),
            (Place{11, 22, returnToNormal.width, returnToNormal.height}));
  EXPECT_EQ(control<Control>("lblCCTVAlarm").place(), (Place{31, 32, label.width, label.height}));
}

}  // namespace
}  // namespace pelorin::test
