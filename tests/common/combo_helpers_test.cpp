// Selecting a combo's row by its data.
#include "common/combo_helpers.h"

#include <gtest/gtest.h>

namespace pelorin {
namespace {

class ComboHelpersTest : public testing::Test {
 protected:
  ComboHelpersTest() {
    combo.addItem("None", 0);
    combo.addItem("Lobby", 7);
    combo.addItem("Ramp", 9);
    combo.addItem("Ramp again", 9);
    combo.onClick = [this] { ++clicks; };
  }

  ComboBox combo{noParent, "cmbCamera", {}};
  int clicks = 0;
};

TEST_F(ComboHelpersTest, FirstRowWithTheDataIsSelected) {
  SelectComboItemByData(combo, 9);
  EXPECT_EQ(combo.listIndex(), 2);
}

TEST_F(ComboHelpersTest, ZeroIsDataLikeAnyOther) {
  combo.setListIndex(1);
  SelectComboItemByData(combo, 0);
  EXPECT_EQ(combo.listIndex(), 0);
}

TEST_F(ComboHelpersTest, UnknownDataLeavesTheSelection) {
  combo.setListIndex(1);
  SelectComboItemByData(combo, 8);
  EXPECT_EQ(combo.listIndex(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ComboHelpersTest, SelectionRaisesTheClickOnlyWhenItChanges) {
  SelectComboItemByData(combo, 7);
  SelectComboItemByData(combo, 7);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ComboHelpersTest, EmptyComboStaysWithoutSelection) {
  combo.clear();
  SelectComboItemByData(combo, 7);
  selectFirstRow(combo);
  EXPECT_EQ(combo.listIndex(), -1);
}

TEST_F(ComboHelpersTest, FirstRowCanBeSelected) {
  selectFirstRow(combo);
  EXPECT_EQ(combo.listIndex(), 0);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace pelorin
