// A list of rows and columns: the summary's grid, the editor's locations and events.
#pragma once

#include <string>
#include <vector>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

using Row = std::vector<std::string>;

int rowCount(HWND list);
std::string cell(HWND list, int row, int column);
std::vector<Row> rowsOf(HWND list);
std::vector<std::string> headersOf(HWND list);
// -1 when there is none.
int findRow(HWND list, int column, const std::string& text);

// Where to click for the row and for its tick, in the list's pixels, once the row is in sight.
POINT rowPlace(HWND list, int row);
POINT checkPlace(HWND list, int row);

// By a click on it.
void selectRow(HWND list, int row);
void doubleClickRow(HWND list, int row);
int selectedRow(HWND list);
void clickCheck(HWND list, int row);
bool isRowChecked(HWND list, int row);

}  // namespace pelorin::driver
