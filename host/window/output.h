// Where messages for the user go: the console or pipe that started the program, or a message box.
#pragma once

#include <string>

namespace pelorin::host {

// Writes a line to standard output; nothing happens when there is none.
void printLine(const std::string& text);
// The same for standard error.
void printError(const std::string& text);

// In a message box without an owner.
void showError(const std::string& text);

}  // namespace pelorin::host
