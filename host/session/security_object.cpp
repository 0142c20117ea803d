#include "host/session/security_object.h"

#include "base/run_time_error.h"
#include "base/text_key.h"
#include "host/session/services_object.h"

namespace pelorin::host {

namespace {

constexpr std::int32_t triggerActions = 91;
constexpr const char* useKey = "Pelorin - Use";
// What a collection says about a key that it does not hold.
constexpr std::int32_t invalidCall = 5;

}  // namespace

const PermissionObject::Member PermissionObject::members[1] = {
    {L"CanView", &PermissionObject::canView},
};

const SubPermissionsObject::Member SubPermissionsObject::members[2] = {
    {L"Item", &SubPermissionsObject::item},
    {L"Count", &SubPermissionsObject::count},
};

const SecurityObject::Member SecurityObject::members[2] = {
    {L"ComponentType", &SecurityObject::componentType},
    {L"SubPermissions", &SecurityObject::subPermissions},
};

bool SubPermissionsObject::isTriggerActions() const {
  return componentType_ == triggerActions;
}

Variant SubPermissionsObject::item(const MemberCall& call) {
  if (!isTriggerActions() || !equalNoCase(call.text(0), useKey)) {
    throw RunTimeError(invalidCall, "Invalid procedure call or argument");
  }
  return Variant::object(makeObject<PermissionObject>(state_->settings.permitted).get());
}

Variant SubPermissionsObject::count(const MemberCall&) {
  return Variant::int32(isTriggerActions() ? 1 : 0);
}

Variant SecurityObject::componentType(const MemberCall& call) {
  if (!call.isPut()) return Variant::int32(componentType_);
  componentType_ = toInt32(valueOf(call.putValue()));
  return {};
}

Variant SecurityObject::subPermissions(const MemberCall&) {
  return Variant::object(makeObject<SubPermissionsObject>(state_, componentType_).get());
}

}  // namespace pelorin::host
