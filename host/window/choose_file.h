// The dialog that asks for a database file.
#pragma once

#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::host {

class DataSource;

// An existing file or a new one; empty when the user gave up.
std::string chooseDatabaseFile(HWND owner, const DataSource& current);

}  // namespace pelorin::host
