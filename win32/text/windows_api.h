// The system's declarations, in the one order that they can be read in.
#pragma once

// clang-format off
#include <windows.h>
#include <windowsx.h>
#include <ole2.h>
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on
