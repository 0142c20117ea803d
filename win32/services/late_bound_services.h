// The host's services object, called by member name.
#pragma once

#include "common/host_services.h"
#include "win32/com/late_bound.h"

namespace pelorin {

class LateBoundServices : public HostServices {
 public:
  explicit LateBoundServices(ComPtr<IDispatch> host) : host_(std::move(host)) {}

 protected:
  std::string callGetResourceString(std::int32_t id) override;
  std::string callGRS(std::int32_t id, const Substitutions& texts) override;
  bool readCanView(std::int16_t componentType, const std::string& subPermission) override;
  void callLogEvent(const std::string& action, const std::string& kind, std::int32_t id,
                    const std::string& description, std::int16_t code) override;
  void callShowHelp(std::int16_t topic) override;
  bool readBoolean(const char* property) override;
  std::int32_t readNumber(const char* property) override;

 private:
  LateBound host_;
};

}  // namespace pelorin
