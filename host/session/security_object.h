// The host's permission tables: which parts of a component the operator may use.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "host/automation/automation_object.h"

namespace pelorin::host {

struct HostState;

class PermissionObject : public AutomationObject<PermissionObject> {
 public:
  explicit PermissionObject(bool canView) : canView_(canView) {}

  static constexpr const wchar_t* sourceName = L"PelorinHost.Permission";
  static const Member members[1];

 private:
  Variant canView(const MemberCall&) const { return boolean(canView_); }

  bool canView_;
};

// The sub-permissions of one component type, by key.
class SubPermissionsObject : public AutomationObject<SubPermissionsObject> {
 public:
  SubPermissionsObject(std::shared_ptr<HostState> state, std::int32_t componentType)
      : state_(std::move(state)), componentType_(componentType) {}

  static constexpr const wchar_t* sourceName = L"PelorinHost.SubPermissions";
  static const Member members[2];

 private:
  Variant item(const MemberCall& call);
  Variant count(const MemberCall& call);
  bool isTriggerActions() const;

  std::shared_ptr<HostState> state_;
  std::int32_t componentType_;
};

class SecurityObject : public AutomationObject<SecurityObject> {
 public:
  explicit SecurityObject(std::shared_ptr<HostState> state) : state_(std::move(state)) {}

  static constexpr const wchar_t* sourceName = L"PelorinHost.Security";
  static const Member members[2];

 private:
  Variant componentType(const MemberCall& call);
  Variant subPermissions(const MemberCall& call);

  std::shared_ptr<HostState> state_;
  std::int32_t componentType_ = 0;
};

}  // namespace pelorin::host
