// Rows of the grid, and which of them is current.
#include "controls/grid.h"

#include <gtest/gtest.h>

#include "tests/controls/error_number_of.h"
#include "tests/controls/listening_view.h"

namespace pelorin::test {

namespace {

class GridOfThree : public ::testing::Test {
 protected:
  void SetUp() override {
    grid.setRows(1);
    for (const char* row : {"a1", "b2", "c3"}) grid.addRow({{row[0]}, {row[1]}});
    grid.onDoubleClick = [this] { ++doubleClicks; };
  }

  Grid grid{noParent, "grid", {}, 2};
  int doubleClicks = 0;
};

}  // namespace

TEST(Grid, StartsWithAHeaderAndOneEmptyRow) {
  const Grid grid(noParent, "grid", {}, 7);
  EXPECT_EQ(grid.rows(), 2);
  EXPECT_EQ(grid.fixedRows(), 1);
  EXPECT_EQ(grid.columns(), 7);
}

TEST_F(GridOfThree, ARowHasACellForEachColumn) {
  EXPECT_EQ(grid.rows(), 4);
  EXPECT_EQ(grid.cell(2, 0), "b");
  EXPECT_EQ(grid.cell(2, 1), "2");
  grid.addRow({"only"});
  EXPECT_EQ(grid.cell(4, 1), "");
  grid.addRow({"x", "y", "dropped"});
  EXPECT_EQ(grid.cell(5, 1), "y");
}

TEST_F(GridOfThree, TheLastRowThatIsNotFixedCannotBeRemoved) {
  grid.removeItem(3);
  grid.removeItem(2);
  EXPECT_EQ(errorNumberOf([&] { grid.removeItem(1); }), error_number::lastNonFixedRow);
  EXPECT_EQ(grid.rows(), 2);
}

TEST_F(GridOfThree, UnfixingTheHeaderRemovesTheLastDataRow) {
  grid.removeItem(3);
  grid.removeItem(2);
  grid.setFixedRows(0);
  grid.removeItem(1);
  grid.setRows(2);
  grid.setFixedRows(1);
  grid.setRows(1);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(grid.fixedRows(), 1);
}

TEST_F(GridOfThree, PropertiesOutOfRangeAreErrors) {
  const auto invalid = error_number::invalidPropertyValue;
  EXPECT_EQ(errorNumberOf([&] { grid.setRows(0); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.setFixedRows(4); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.setRow(4); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.cell(0, 2); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.cell(4, 0); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.setColumnWidth(2, 1); }), invalid);
  EXPECT_EQ(errorNumberOf([&] { grid.removeItem(4); }), invalid);
}

TEST_F(GridOfThree, TheCurrentRowFollowsRowsRemovedAboveIt) {
  grid.setRow(3);
  grid.removeItem(1);
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.cell(grid.row(), 0), "c");
}

TEST_F(GridOfThree, ClearingTheCurrentRowKeepsTheCaretNear) {
  grid.setRow(3);
  grid.removeItem(3);
  grid.clearCurrentRow();
  EXPECT_EQ(grid.row(), 0);
  EXPECT_EQ(grid.caretRow(), 2);
}

TEST_F(GridOfThree, TheOperatorSelectsDataRowsOnly) {
  grid.userSelectRow(2);
  grid.userSelectRow(0);
  grid.userSelectRow(4);
  EXPECT_EQ(grid.row(), 2);
  grid.setEnabled(false);
  grid.userSelectRow(1);
  EXPECT_EQ(grid.row(), 2);
}

TEST_F(GridOfThree, ADoubleClickNeedsACurrentDataRow) {
  grid.userDoubleClick();
  EXPECT_EQ(doubleClicks, 0);
  grid.setRow(1);
  grid.userDoubleClick();
  EXPECT_EQ(doubleClicks, 1);
}

TEST_F(GridOfThree, TheScrollPlaceIsKeptInsideTheRows) {
  grid.setTopRow(99);
  EXPECT_EQ(grid.topRow(), 3);
  grid.userScroll(2);
  EXPECT_EQ(grid.topRow(), 2);
}

TEST_F(GridOfThree, TellsItsViewWhatKindOfChangeItWas) {
  const ListeningView view(grid);
  grid.setCell(0, 0, "Header");
  EXPECT_TRUE(view.heard(Aspect::Columns, 0));
  grid.setCell(2, 0, "x");
  EXPECT_TRUE(view.heard(Aspect::Item, 2));
  grid.addRow({"y"});
  EXPECT_TRUE(view.heard(Aspect::Items));
  grid.setRow(1);
  EXPECT_TRUE(view.heard(Aspect::Selection));
}

}  // namespace pelorin::test
