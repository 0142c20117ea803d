// The contract with the host's services object, which is called late-bound by member name.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/source_line.h"

namespace pelorin {

inline constexpr std::size_t substitutionCount = 9;
using Substitutions = std::array<std::string, substitutionCount>;

class HostServices {
 public:
  virtual ~HostServices() = default;

  std::string GetResourceString(std::int32_t id, SourceLine where = SourceLine::current());
  std::string GRS(std::int32_t id, const Substitutions& texts,
                  SourceLine where = SourceLine::current());
  // Sets ComponentType on the host's Security object and reads CanView of the sub-permission.
  bool canView(std::int16_t componentType, const std::string& subPermission,
               SourceLine where = SourceLine::current());
  void LogEvent(const std::string& action, const std::string& kind, std::int32_t id,
                const std::string& description, std::int16_t code,
                SourceLine where = SourceLine::current());
  void ShowHelp(std::int16_t topic, SourceLine where = SourceLine::current());
  bool EnableCustomize(SourceLine where = SourceLine::current());
  bool ZornIsVn8HardwareSupportEnabled(SourceLine where = SourceLine::current());
  std::int32_t OperatorID(SourceLine where = SourceLine::current());
  std::int32_t WorkStationID(SourceLine where = SourceLine::current());

 protected:
  virtual std::string callGetResourceString(std::int32_t id) = 0;
  virtual std::string callGRS(std::int32_t id, const Substitutions& texts) = 0;
  virtual bool readCanView(std::int16_t componentType, const std::string& subPermission) = 0;
  virtual void callLogEvent(const std::string& action, const std::string& kind, std::int32_t id,
                            const std::string& description, std::int16_t code) = 0;
  virtual void callShowHelp(std::int16_t topic) = 0;
  virtual bool readBoolean(const char* property) = 0;
  virtual std::int32_t readNumber(const char* property) = 0;
};

}  // namespace pelorin
