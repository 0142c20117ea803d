#include "tests/fakes/recording_services.h"

#include "base/run_time_error.h"

namespace pelorin::test {

void RecordingServices::called(const std::string& member, const std::string& arguments) {
  journal_.add("host: " + member + arguments);
  const bool fails = faults_.nextFails();
  // It may set another one, or none.
  const auto during = duringCall;
  if (during) during(member);
  if (fails || failing.contains(member)) throw RunTimeError(-2147352567, member + " failed");
}

std::string RecordingServices::callGetResourceString(std::int32_t id) {
  called("GetResourceString", "(" + std::to_string(id) + ")");
  const auto found = texts.find(id);
  return found == texts.end() ? "#" + std::to_string(id) : found->second;
}

std::string RecordingServices::callGRS(std::int32_t id, const Substitutions& substitutions) {
  std::string arguments = "(" + std::to_string(id);
  for (const std::string& text : substitutions) arguments += ", " + text;
  called("GRS", arguments + ")");
  return "#" + std::to_string(id) + ":" + substitutions.front();
}

bool RecordingServices::readCanView(std::int16_t componentType, const std::string& subPermission) {
  called("Security", "(" + std::to_string(componentType) + ", " + subPermission + ")");
  return permitted;
}

void RecordingServices::callLogEvent(const std::string& action, const std::string& kind,
                                     std::int32_t id, const std::string& description,
                                     std::int16_t code) {
  called("LogEvent", "(" + action + ", " + kind + ", " + std::to_string(id) + ", " + description +
                         ", " + std::to_string(code) + ")");
}

void RecordingServices::callShowHelp(std::int16_t topic) {
  called("ShowHelp", "(" + std::to_string(topic) + ")");
}

bool RecordingServices::readBoolean(const char* property) {
  called(property, "");
  return property == std::string("EnableCustomize") ? enableCustomize : newerHardware;
}

std::int32_t RecordingServices::readNumber(const char* property) {
  called(property, "");
  return property == std::string("OperatorID") ? operatorId : workStationId;
}

}  // namespace pelorin::test
