// The ODBC declarations of the platform: odbc32 on Windows, unixODBC elsewhere.
#pragma once

#ifdef _WIN32
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
