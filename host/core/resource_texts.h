// The texts that the component asks its host for, by number.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace pelorin::host {

// "Text <id>" for a number that the host does not know.
std::string resourceText(std::int32_t id);

// Puts texts[0] to texts[8] in place of %1 to %9; "%%" is a percent sign. What was put in is not
// searched again.
std::string substitute(std::string_view pattern, std::span<const std::string> values);

}  // namespace pelorin::host
