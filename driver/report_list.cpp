#include "driver/report_list.h"

#include <array>

#include "driver/find_window.h"
#include "driver/operate.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::driver {

namespace {

constexpr std::size_t longestCell = 2048;

HWND headerOf(HWND list) {
  return reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
}

int columnCount(HWND list) {
  return static_cast<int>(SendMessageW(headerOf(list), HDM_GETITEMCOUNT, 0, 0));
}

void bringIntoSight(HWND list, int row) {
  SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

POINT placeOf(HWND list, int row, int part) {
  RECT place{};
  place.left = part;
  SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  constexpr LONG inside = 4;
  return {place.left + inside, (place.top + place.bottom) / 2};
}

}  // namespace

int rowCount(HWND list) {
  return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

std::string cell(HWND list, int row, int column) {
  std::array<wchar_t, longestCell> text{};
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return toUtf8(item.pszText);
}

std::vector<Row> rowsOf(HWND list) {
  std::vector<Row> rows(static_cast<std::size_t>(rowCount(list)));
  const int columns = columnCount(list);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (int column = 0; column < columns; ++column) {
      rows[row].push_back(cell(list, static_cast<int>(row), column));
    }
  }
  return rows;
}

std::vector<std::string> headersOf(HWND list) {
  std::vector<std::string> headers;
  for (int column = 0; column < columnCount(list); ++column) {
    std::array<wchar_t, longestCell> text{};
    HDITEMW item{};
    item.mask = HDI_TEXT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(headerOf(list), HDM_GETITEMW, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&item));
    headers.push_back(toUtf8(item.pszText));
  }
  return headers;
}

int findRow(HWND list, int column, const std::string& text) {
  for (int row = 0; row < rowCount(list); ++row) {
    if (cell(list, row, column) == text) return row;
  }
  return -1;
}

int selectedRow(HWND list) {
  return static_cast<int>(
      SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

POINT rowPlace(HWND list, int row) {
  bringIntoSight(list, row);
  return placeOf(list, row, LVIR_LABEL);
}

// The box stands between the row's left edge and its text.
POINT checkPlace(HWND list, int row) {
  bringIntoSight(list, row);
  POINT place = placeOf(list, row, LVIR_LABEL);
  const POINT edge = placeOf(list, row, LVIR_BOUNDS);
  place.x = (place.x + edge.x) / 2;
  LVHITTESTINFO hit{};
  for (hit.pt = place; hit.pt.x >= edge.x; --hit.pt.x) {
    SendMessageW(list, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if ((hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON) return hit.pt;
  }
  throw DriverError(designName(list) + " has no box to tick in row " + std::to_string(row));
}

void selectRow(HWND list, int row) {
  clickAt(list, rowPlace(list, row));
  waitFor("row selected in " + designName(list), [&] { return selectedRow(list) == row; });
}

void doubleClickRow(HWND list, int row) {
  doubleClickAt(list, rowPlace(list, row));
}

bool isRowChecked(HWND list, int row) {
  const LRESULT state =
      SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
  return (static_cast<UINT>(state) & LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
}

void clickCheck(HWND list, int row) {
  const bool before = isRowChecked(list, row);
  clickAt(list, checkPlace(list, row));
  waitFor("tick in " + designName(list), [&] { return isRowChecked(list, row) != before; });
}

}  // namespace pelorin::driver
