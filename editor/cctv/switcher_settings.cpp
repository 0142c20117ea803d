#include "editor/cctv/switcher_settings.h"

namespace pelorin {

std::string switcherSettingsFile(const Module1& module, const std::string& iniName) {
  return module.environment().componentFolder() + "\\CCTV\\" + iniName + ".INI";
}

bool switcherSupports(const Module1& module, const std::string& iniName, std::int16_t action) {
  return module.ReadIniValue(switcherSettingsFile(module, iniName), "UNSUPPORTED",
                             "Action" + std::to_string(action)) == "NOTINITIALIZED";
}

}  // namespace pelorin
