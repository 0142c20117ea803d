// Combos and lists: rows, data, selection and check marks.
#include "controls/item_lists.h"

#include <gtest/gtest.h>

#include "tests/controls/error_number_of.h"
#include "tests/controls/listening_view.h"

namespace pelorin::test {

namespace {

class Combo : public ::testing::Test {
 protected:
  void SetUp() override {
    combo.addItem("first", 11);
    combo.addItem("second", 22);
    combo.onClick = [this] { ++clicks; };
  }

  ComboBox combo{noParent, "cmb", {}};
  int clicks = 0;
};

class Box : public ::testing::Test {
 protected:
  void SetUp() override {
    list.addItem("first", 1);
    list.addItem("second", 2);
    list.onClick = [this] { ++clicks; };
  }

  ListBox list{noParent, "lst", {}};
  int clicks = 0;
};

}  // namespace

TEST_F(Combo, RaisesTheClickWhenTheIndexReallyChangesAndOnlyThen) {
  combo.setListIndex(1);
  combo.setListIndex(1);
  EXPECT_EQ(clicks, 1);
  combo.setListIndex(-1);
  EXPECT_EQ(clicks, 1) << "selecting nothing is no click";
  combo.setListIndex(1);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Combo, ARowThatDoesNotExistIsAnError) {
  EXPECT_EQ(errorNumberOf([&] { combo.setListIndex(2); }), error_number::invalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { combo.row(-1); }), error_number::invalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { static_cast<void>(combo.selectedData()); }),
            error_number::invalidPropertyValue);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Combo, GivesTheDataOfTheCurrentRow) {
  combo.setListIndex(1);
  EXPECT_EQ(combo.selectedData(), 22);
}

TEST_F(Combo, ClearingSelectsNothingWithoutAClick) {
  combo.setListIndex(0);
  clicks = 0;
  combo.clear();
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(combo.listCount(), 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Combo, TheOperatorsChoiceAlwaysRaisesTheClick) {
  combo.userSelect(1);
  combo.userSelect(1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(combo.listIndex(), 1);
}

TEST_F(Combo, NoRowIsNoChoiceOfTheOperator) {
  combo.userSelect(-1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Combo, TheOperatorCannotPickWhileItIsDisabled) {
  combo.setEnabled(false);
  combo.userSelect(1);
  EXPECT_EQ(combo.listIndex(), -1);
}

TEST_F(Combo, TellsItsViewOfRowsAndSelection) {
  const ListeningView view(combo);
  combo.addItem("third");
  combo.setListIndex(2);
  EXPECT_TRUE(view.heard(Aspect::Items));
  EXPECT_TRUE(view.heard(Aspect::Selection));
}

TEST_F(Combo, AClickHandlerMayEmptyTheCombo) {
  combo.onClick = [&] { combo.clear(); };
  combo.setListIndex(0);
  EXPECT_EQ(combo.listIndex(), -1);
}

TEST_F(Box, TogglesOneRowAndRaisesTheClick) {
  list.userToggle(1);
  EXPECT_TRUE(list.selected(1));
  EXPECT_FALSE(list.selected(0));
  list.userToggle(1);
  EXPECT_FALSE(list.selected(1));
  EXPECT_EQ(clicks, 2);
}

TEST_F(Box, AMarkSetToWhatItIsRaisesNothing) {
  list.setSelected(0, false);
  EXPECT_EQ(clicks, 0);
  const ListeningView view(list);
  list.setSelected(0, true);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(view.heard(Aspect::Checks, 0));
}

TEST_F(Box, ARowThatDoesNotExistIsAnError) {
  EXPECT_EQ(errorNumberOf([&] { list.setSelected(2, true); }), error_number::invalidPropertyValue);
}

TEST_F(Box, ClearingEmptiesItWithoutAClick) {
  list.setSelected(0, true);
  clicks = 0;
  list.clear();
  EXPECT_EQ(list.listCount(), 0);
  EXPECT_EQ(clicks, 0);
}

}  // namespace pelorin::test
