#include "common/host_services.h"

namespace pelorin {

std::string HostServices::GetResourceString(std::int32_t id, SourceLine where) {
  return withLine(where, [&] { return callGetResourceString(id); });
}

std::string HostServices::GRS(std::int32_t id, const Substitutions& texts, SourceLine where) {
  return withLine(where, [&] { return callGRS(id, texts); });
}

bool HostServices::canView(std::int16_t componentType, const std::string& subPermission,
                           SourceLine where) {
  return withLine(where, [&] { return readCanView(componentType, subPermission); });
}

void HostServices::LogEvent(const std::string& action, const std::string& kind, std::int32_t id,
                            const std::string& description, std::int16_t code, SourceLine where) {
  withLine(where, [&] { callLogEvent(action, kind, id, description, code); });
}

void HostServices::ShowHelp(std::int16_t topic, SourceLine where) {
  withLine(where, [&] { callShowHelp(topic); });
}

bool HostServices::EnableCustomize(SourceLine where) {
  return withLine(where, [&] { return readBoolean("EnableCustomize"); });
}

bool HostServices::ZornIsVn8HardwareSupportEnabled(SourceLine where) {
  return withLine(where, [&] { return readBoolean("ZornIsVn8HardwareSupportEnabled"); });
}

std::int32_t HostServices::OperatorID(SourceLine where) {
  return withLine(where, [&] { return readNumber("OperatorID"); });
}

std::int32_t HostServices::WorkStationID(SourceLine where) {
  return withLine(where, [&] { return readNumber("WorkStationID"); });
}

}  // namespace pelorin
