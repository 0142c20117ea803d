// The one event of an edited trigger stands in front of the list of events.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

class EditOverlayTest : public EditorTest {
 protected:
  EditOverlayTest() { answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0}); }

  static constexpr const char* behind[] = {"lvwEvents", "cmdSelect(0)", "cmdSelect(1)"};
};

TEST_F(EditOverlayTest, WhatStandsBehindItIsVisibleAndOutOfReach) {
  editCctv();
  EXPECT_TRUE(control<Frame>("fraEditOverlay").visible());
  tickFilter(3);
  ASSERT_GT(control<ListView>("lvwEvents").count(), 0) << "events of the newer family are listed";
  EXPECT_TRUE(button("cmdSelect(0)").enabled());
  for (const char* name : behind) {
    EXPECT_TRUE(control<Control>(name).visible()) << name;
    EXPECT_FALSE(control<Control>(name).reachable()) << name;
  }
  button("cmdSelect(0)").userClick();
  checkEvents({1});
  EXPECT_FALSE(control<ListView>("lvwEvents").item(1).checked);
  EXPECT_TRUE(combo("cmbEvents").reachable());
}

TEST_F(EditOverlayTest, ANewTriggerHasNothingInFrontOfItsList) {
  openEditor();
  tickFilter(1);
  EXPECT_FALSE(control<Frame>("fraEditOverlay").visible());
  for (const char* name : behind) EXPECT_TRUE(control<Control>(name).reachable()) << name;
}

TEST_F(EditOverlayTest, ItCoversTheListAndItsButtonsWhole) {
  editCctv();
  const Place over = control<Frame>("fraEditOverlay").place();
  for (const char* name : behind) {
    const Place place = control<Control>(name).place();
    EXPECT_GE(place.left, over.left) << name;
    EXPECT_GE(place.top, over.top) << name;
    EXPECT_LE(place.left + place.width, over.left + over.width) << name;
    EXPECT_LE(place.top + place.height, over.top + over.height) << name;
  }
}

}  // namespace
}  // namespace pelorin::test
