// A read-only grid of texts with a fixed header row; one data row is current, or none. Rows and
// columns are numbered from 0, row 0 is the header. The last row that is not fixed cannot be
// removed (error 30015): callers unfix the header first.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace pelorin {

class Grid : public Control {
 public:
  Grid(Parent parent, std::string name, const DesignPlace& design, int columns);

  int columns() const noexcept { return static_cast<int>(widths_.size()); }
  int columnWidth(int column) const;
  void setColumnWidth(int column, int twips);  // 0 hides the column

  int rows() const noexcept { return static_cast<int>(cells_.size()); }
  // Adds empty rows at the end or removes rows from the end.
  void setRows(int rows);
  int fixedRows() const noexcept { return fixedRows_; }
  // Error 380 unless less than rows().
  void setFixedRows(int fixed);

  const std::string& cell(int row, int column) const;
  void setCell(int row, int column, const std::string& text);
  // Further cells are dropped, missing ones are empty.
  void addRow(std::vector<std::string> cells);
  void removeItem(int row);

  // The current row; 0 or less when no data row is current.
  int row() const noexcept { return row_; }
  void setRow(int row);
  // The row the keyboard starts from when no row is current; never a data row that is acted on.
  int caretRow() const noexcept { return caretRow_; }
  // Nothing is current any more; the caret stays near.
  void clearCurrentRow();

  // First data row in sight, for views to report and to obey.
  int topRow() const noexcept { return topRow_; }
  void setTopRow(int row);

  std::function<void()> onDoubleClick;
  void userSelectRow(int row);
  void userDoubleClick();
  void userScroll(int topRow) { topRow_ = topRow; }

 private:
  std::size_t slot(int row) const;
  void checkColumn(int column) const;

  std::vector<int> widths_;
  std::vector<std::vector<std::string>> cells_;
  int fixedRows_ = 1;
  int row_ = 0;
  int caretRow_ = 0;
  int topRow_ = 1;
};

}  // namespace pelorin
