// What an operator does with mouse and keyboard, and what he sees in a control. Each act waits
// until the control has taken it.
#pragma once

#include <string>
#include <vector>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

POINT middleOf(const RECT& area);
// A point in the window's client area, in pixels.
void clickAt(HWND window, POINT point);
void doubleClickAt(HWND window, POINT point);
void pressKey(HWND window, WORD key);
// Alt and a letter, to whatever the window's form does with it.
void pressMnemonic(HWND window, char letter);
void typeText(HWND window, const std::string& text);
// Types over what a text box holds.
void replaceText(HWND textBox, const std::string& text);

// Buttons and check boxes. DriverError when it is grey or hidden.
void clickButton(HWND button);
bool isChecked(HWND checkBox);

// Combo boxes, by the keyboard. DriverError when there is no such row.
void chooseRow(HWND combo, int row);
void chooseText(HWND combo, const std::string& text);
std::vector<std::string> comboRows(HWND combo);
int comboRow(HWND combo);

// List boxes with rows that are ticked one by one.
void tickRow(HWND listBox, int row);
std::vector<std::string> listBoxRows(HWND listBox);
bool isTicked(HWND listBox, int row);
// Where to click for the row, in the list box's pixels, once it is in sight.
POINT listBoxPlace(HWND listBox, int row);

// Tab controls.
void chooseTab(HWND tabs, int page);

}  // namespace pelorin::driver
