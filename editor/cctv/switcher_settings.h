// Each CCTV switcher names a settings file that lists the actions it cannot perform.
#pragma once

#include <cstdint>
#include <string>

#include "common/module1.h"

namespace pelorin {

// "<component folder>\CCTV\<name>.INI".
std::string switcherSettingsFile(const Module1& module, const std::string& iniName);

// Whether the file leaves the action out of its section "UNSUPPORTED". Whatever the key's value
// says, its presence forbids the action; a missing file forbids none.
bool switcherSupports(const Module1& module, const std::string& iniName, std::int16_t action);

}  // namespace pelorin
