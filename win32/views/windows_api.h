// The Windows headers, in the one order in which they compile.
#pragma once

// clang-format off
#include <windows.h>
#include <windowsx.h>
#include <commctrl.h>
#include <uxtheme.h>
#include <vssym32.h>
// clang-format on
