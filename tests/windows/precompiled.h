// The same for tests that run on Windows.
#pragma once

#include <ole2.h>
#include <windows.h>

#include "tests/precompiled.h"
