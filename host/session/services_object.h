// The services that a host gives its add-ins, as an automation object.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/automation/automation_object.h"
#include "host/core/audit_trail.h"
#include "host/core/host_settings.h"

namespace pelorin::host {

// What the services act on; each may change while an add-in is open.
struct HostState {
  HostSettings settings;
  AuditTrail* audit = nullptr;
  std::function<void(std::int16_t topic)> showHelp;
};

class ServicesObject : public AutomationObject<ServicesObject> {
 public:
  explicit ServicesObject(std::shared_ptr<HostState> state) : state_(std::move(state)) {}

  static constexpr const wchar_t* sourceName = L"PelorinHost.Services";
  static const Member members[9];

 private:
  Variant getResourceString(const MemberCall& call);
  Variant grs(const MemberCall& call);
  Variant security(const MemberCall& call);
  Variant logEvent(const MemberCall& call);
  Variant showHelp(const MemberCall& call);
  Variant enableCustomize(const MemberCall& call);
  Variant newerHardware(const MemberCall& call);
  Variant operatorId(const MemberCall& call);
  Variant workStationId(const MemberCall& call);

  std::shared_ptr<HostState> state_;
};

}  // namespace pelorin::host
