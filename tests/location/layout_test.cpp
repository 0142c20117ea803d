// Where the picker's controls stand.
#include <gtest/gtest.h>

#include "location/f_location.h"
#include "tests/location/picker_fixture.h"

namespace pelorin::test {
namespace {

class LayoutTest : public PickerTest {};

TEST_F(LayoutTest, DesignValues) {
  EXPECT_EQ(picker.caption(), "Select Locations");
  EXPECT_EQ(picker.client(), (Size{5145, 5820}));
  EXPECT_EQ(picker.Label1.place(), (Place{90, 135, 4380, 420}));
  EXPECT_EQ(picker.Label1.text(), "Double-click to add location to list");
  EXPECT_EQ(picker.lbllocationLabel.place(), (Place{90, 585, 735, 195}));
  EXPECT_EQ(picker.lbllocationLabel.text(), "Location:");
  EXPECT_EQ(picker.lblLocation.place(), (Place{1080, 585, 3435, 195}));
  EXPECT_EQ(picker.lblLocation.text(), "<None>");
  EXPECT_EQ(picker.tvTree.place(), (Place{90, 810, 4965, 4335}));
  EXPECT_EQ(picker.cmdMain[0].place(), (Place{2925, 5310, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[0].text(), "OK");
  EXPECT_EQ(picker.cmdMain[1].place(), (Place{4050, 5310, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[1].text(), "Close");
  EXPECT_EQ(picker.cmdMain[2].place(), (Place{90, 5310, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
}

TEST_F(LayoutTest, ControlsHaveTheirDesignNames) {
  for (const char* name : {"Label1", "lbllocationLabel", "lblLocation", "tvTree", "cmdMain(0)",
                           "cmdMain(1)", "cmdMain(2)"}) {
    EXPECT_NE(picker.find(name), nullptr) << name;
  }
}

TEST_F(LayoutTest, SmallestSizeIsPreventedWhileDragging) {
  EXPECT_TRUE(picker.resizable());
  EXPECT_EQ(picker.smallest(), (Size{4000, 3000}));
}

TEST_F(LayoutTest, LargerWindow) {
  open();
  picker.userResize({10290, 9000});
  const int buttonTop = 9000 - 80 - 375;
  EXPECT_EQ(picker.cmdMain[2].place(), (Place{80, buttonTop, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[1].place(), (Place{10290 - 80 - 1005, buttonTop, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[0].place(), (Place{10290 - 160 - 2010, buttonTop, 1005, 375}));
  EXPECT_EQ(picker.tvTree.place(), (Place{80, 810, 10290 - 160, buttonTop - 80 - 810}));
  EXPECT_EQ(picker.Label1.place(), (Place{90, 135, 8760, 420}));
  EXPECT_EQ(picker.lbllocationLabel.place(), (Place{90, 585, 735, 195}));
  EXPECT_EQ(picker.lblLocation.place(), (Place{1080, 585, 6870, 195}));
}

TEST_F(LayoutTest, HoldsFromTheFirstMoment) {
  open();
  const int buttonTop = 5820 - 80 - 375;
  EXPECT_EQ(picker.tvTree.place(), (Place{80, 810, 5145 - 160, buttonTop - 80 - 810}));
  EXPECT_EQ(picker.cmdMain[2].place(), (Place{80, buttonTop, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[1].place(), (Place{5145 - 80 - 1005, buttonTop, 1005, 375}));
  EXPECT_EQ(picker.cmdMain[0].place(), (Place{5145 - 160 - 2010, buttonTop, 1005, 375}));
}

TEST_F(LayoutTest, SmallestWindowKeepsEverythingApart) {
  open();
  picker.userResize({4000, 3000});
  const int buttonTop = 3000 - 80 - 375;
  EXPECT_EQ(picker.tvTree.place(), (Place{80, 810, 3840, buttonTop - 80 - 810}));
  EXPECT_EQ(picker.cmdMain[0].place().left, 4000 - 160 - 2010);
  EXPECT_GT(picker.cmdMain[0].place().left, 80 + 1005);
  const Place& status = picker.lblLocation.place();
  EXPECT_LE(status.left + status.width, 4000 - 80);
}

TEST_F(LayoutTest, NothingMovesWhileMinimised) {
  open();
  picker.userResize({6000, 6000});
  const Place before = picker.tvTree.place();
  picker.userResize({0, 0});
  EXPECT_EQ(picker.tvTree.place(), before);
  picker.userResize({6000, 6000});
  EXPECT_EQ(picker.tvTree.place(), before);
}

TEST_F(LayoutTest, NoSizeMakesAControlNegative) {
  open();
  picker.userResize({1, 1});
  for (const Control* control : picker.controls()) {
    EXPECT_GE(control->place().width, 0) << control->name();
    EXPECT_GE(control->place().height, 0) << control->name();
  }
}

TEST(MhStretch, WidthsFollowInProportionUnlessInDesignMode) {
  MhStretch stretch({1000, 500});
  EXPECT_EQ(stretch.width(300), 300);
  stretch.setExtents({2000, 500});
  EXPECT_EQ(stretch.width(300), 600);
  stretch.setDesignMode(true);
  EXPECT_EQ(stretch.width(300), 300);
  stretch.setDesignMode(false);
  EXPECT_EQ(stretch.width(300), 600);
}

TEST(MhStretch, WidthsFollowTheWidestClientArea) {
  MhStretch stretch({5145, 5820});
  stretch.setExtents({1000000, 1000000});
  EXPECT_EQ(stretch.width(4380), 851311);
}

}  // namespace
}  // namespace pelorin::test
