// The grid's native twin.
#include "win32/views/peers.h"
#include "win32/views/report_peer.h"

namespace pelorin {

namespace {

// Shows the rows below the header as the rows of a report list.
class GridPeer final : public ReportPeer {
 public:
  GridPeer(FormWindow& window, Grid& grid) : ReportPeer(window, grid), grid_(grid) {}

 protected:
  std::vector<Column> columns() const override {
    std::vector<Column> result;
    result.reserve(static_cast<std::size_t>(grid_.columns()));
    for (int column = 0; column < grid_.columns(); ++column) {
      result.push_back({header(column), grid_.columnWidth(column)});
    }
    return result;
  }
  int rowCount() const override { return grid_.rows() - grid_.fixedRows(); }
  std::string cellText(int row, int column) const override {
    const bool known = row >= 0 && row < rowCount() && column >= 0 && column < grid_.columns();
    return known ? grid_.cell(row + grid_.fixedRows(), column) : std::string();
  }
  int currentRow() const override { return dataRow(grid_.row()); }
  int caretRow() const override { return dataRow(grid_.caretRow()); }
  int topRow() const override { return std::max(0, grid_.topRow() - grid_.fixedRows()); }

  void rowPicked(int row) override {
    if (row >= 0) grid_.userSelectRow(row + grid_.fixedRows());
  }
  void rowDoubleClicked() override { grid_.userDoubleClick(); }
  void scrolled(int top) override { grid_.userScroll(top + grid_.fixedRows()); }

 private:
  int dataRow(int row) const {
    return row <= 0 || row < grid_.fixedRows() ? -1 : row - grid_.fixedRows();
  }
  std::string header(int column) const {
    return grid_.fixedRows() > 0 ? grid_.cell(0, column) : std::string();
  }

  Grid& grid_;
};

}  // namespace

std::unique_ptr<Peer> makeGridPeer(FormWindow& window, Grid& grid) {
  return std::make_unique<GridPeer>(window, grid);
}

}  // namespace pelorin
