// A host that answers from fields and writes each call to the journal ("host: ...").
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "common/host_services.h"
#include "tests/fakes/faults.h"
#include "tests/fakes/journal.h"

namespace pelorin::test {

class RecordingServices : public HostServices {
 public:
  explicit RecordingServices(Journal& journal) : journal_(journal) {}

  // Resource text of `id`; "#<id>" when not set.
  std::map<std::int32_t, std::string> texts;
  bool permitted = true;
  bool enableCustomize = false;
  bool newerHardware = false;
  std::int32_t operatorId = 7;
  std::int32_t workStationId = 3;
  // Members that fail, by name, such as "LogEvent" or "EnableCustomize".
  std::set<std::string> failing;
  // Runs inside each call, as a host that handles messages meanwhile; given the member's name.
  std::function<void(const std::string& member)> duringCall;
  void failCall(int number, Lasting lasting = Lasting::Once) { faults_.fail(number, lasting); }
  // How many calls there were since failCall.
  int calls() const { return faults_.acts(); }

 protected:
  std::string callGetResourceString(std::int32_t id) override;
  std::string callGRS(std::int32_t id, const Substitutions& substitutions) override;
  bool readCanView(std::int16_t componentType, const std::string& subPermission) override;
  void callLogEvent(const std::string& action, const std::string& kind, std::int32_t id,
                    const std::string& description, std::int16_t code) override;
  void callShowHelp(std::int16_t topic) override;
  bool readBoolean(const char* property) override;
  std::int32_t readNumber(const char* property) override;

 private:
  void called(const std::string& member, const std::string& arguments);

  Journal& journal_;
  Faults faults_;
};

}  // namespace pelorin::test
