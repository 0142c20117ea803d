// A list that shows the rows of a log as they come, asking for the texts it draws.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::host {

class LogList {
 public:
  struct Column {
    const wchar_t* title = nullptr;
    int width = 0;  // at 96 dots per inch
    int format = LVCFMT_LEFT;
  };
  using CellText = std::function<std::string(std::size_t row, int column)>;

  LogList(HWND parent, int command, std::initializer_list<Column> columns, CellText text);

  HWND handle() const noexcept { return list_; }
  // Shows `count` rows; the last one when the last one was in sight before.
  void show(std::size_t count);
  // WM_NOTIFY from this list: fills in the texts.
  void notify(NMHDR& header);

 private:
  bool endIsInSight() const;

  HWND list_;
  CellText text_;
  std::wstring shown_;  // the text that was given last
};

}  // namespace pelorin::host
