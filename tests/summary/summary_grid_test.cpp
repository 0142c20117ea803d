// The summary's rows in the grid.
#include "summary/summary_grid.h"

#include <gtest/gtest.h>

namespace pelorin::test {
namespace {

class SummaryGridTest : public testing::Test {
 protected:
  SummaryGridTest() {
    for (int column = 0; column < summary_column::count; ++column)
      grid.setCell(0, column, "Header");
    grid.setRows(1);
  }
  static SummaryCells keyCells(const std::string& type, const std::string& triggerId) {
    SummaryCells cells;
    cells[summary_column::type] = type;
    cells[summary_column::triggerId] = triggerId;
    return cells;
  }
  void addRows(int count) {
    for (int i = 1; i <= count; ++i) {
      addSummaryRow(grid, keyCells("CCTV", std::to_string(i)));
    }
  }
  void expectHeaderAlone() {
    EXPECT_EQ(grid.rows(), 1);
    EXPECT_EQ(grid.fixedRows(), 1);
    EXPECT_EQ(grid.cell(0, summary_column::trigger), "Header");
    EXPECT_LT(grid.row(), 1);
  }

  Grid grid{noParent, "MSFlexGrid1", {}, summary_column::count};
};

TEST_F(SummaryGridTest, RowCarriesItsKeyInTheHiddenColumns) {
  addSummaryRow(grid, {"00042 - x", "1.1", "Call", "CCTV", "Matrix", "5", "42"});
  EXPECT_EQ(grid.cell(1, summary_column::trigger), "00042 - x");
  EXPECT_EQ(grid.cell(1, summary_column::device), "Matrix");
  EXPECT_EQ(grid.cell(1, summary_column::triggerId), "5");
  EXPECT_EQ(grid.cell(1, summary_column::eventId), "42");
  EXPECT_EQ(keyOf(grid, 1), (SummaryKey{"CCTV", 5}));
}

TEST_F(SummaryGridTest, OnlyRowIsRemovedAndTheHeaderStays) {
  addRows(1);
  removeSummaryRow(grid, 1);
  expectHeaderAlone();
}

TEST_F(SummaryGridTest, OneOfSeveralRowsIsRemoved) {
  addRows(3);
  removeSummaryRow(grid, 2);
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.cell(2, summary_column::triggerId), "3");
}

TEST_F(SummaryGridTest, AnyNumberOfRowsIsRemoved) {
  for (int count : {0, 1, 2, 3, 50}) {
    addRows(count);
    removeAllSummaryRows(grid);
    expectHeaderAlone();
  }
}

TEST_F(SummaryGridTest, RowsCanBeAddedAfterAllWereRemoved) {
  addRows(2);
  removeAllSummaryRows(grid);
  addRows(2);
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.cell(1, summary_column::triggerId), "1");
}

TEST_F(SummaryGridTest, TriggerIsFoundByTypeAndId) {
  addRows(3);
  addSummaryRow(grid, keyCells("DVR / NVR", "2"));
  EXPECT_EQ(rowOf(grid, {"CCTV", 2}), 2);
  EXPECT_EQ(rowOf(grid, {"DVR / NVR", 2}), 4);
  EXPECT_EQ(rowOf(grid, {"DVR / NVR", 3}), 0);
}

TEST_F(SummaryGridTest, HeaderIsNoDataRow) {
  addRows(1);
  EXPECT_FALSE(isDataRow(grid, 0));
  EXPECT_FALSE(isDataRow(grid, -1));
  EXPECT_TRUE(isDataRow(grid, 1));
  EXPECT_FALSE(isDataRow(grid, 2));
  EXPECT_FALSE(currentKey(grid));
  grid.setRow(1);
  EXPECT_EQ(currentKey(grid), (SummaryKey{"CCTV", 1}));
}

TEST_F(SummaryGridTest, CaretStaysNearWithoutCurrentRow) {
  addRows(3);
  leaveCaretAt(grid, 2);
  EXPECT_EQ(grid.caretRow(), 2);
  EXPECT_LT(grid.row(), 1);
  leaveCaretAt(grid, 9);
  EXPECT_EQ(grid.caretRow(), 3);
}

}  // namespace
}  // namespace pelorin::test
