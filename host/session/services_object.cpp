#include "host/session/services_object.h"

#include <array>

#include "host/core/resource_texts.h"
#include "host/session/security_object.h"

namespace pelorin::host {

namespace {

constexpr std::size_t substitutionCount = 9;

}  // namespace

const ServicesObject::Member ServicesObject::members[9] = {
    {L"GetResourceString", &ServicesObject::getResourceString},
    {L"GRS", &ServicesObject::grs},
    {L"Security", &ServicesObject::security},
    {L"LogEvent", &ServicesObject::logEvent},
    {L"ShowHelp", &ServicesObject::showHelp},
    {L"EnableCustomize", &ServicesObject::enableCustomize},
    {L"ZornIsVn8HardwareSupportEnabled", &ServicesObject::newerHardware},
    {L"OperatorID", &ServicesObject::operatorId},
    {L"WorkStationID", &ServicesObject::workStationId},
};

Variant ServicesObject::getResourceString(const MemberCall& call) {
  return Variant::text(resourceText(call.int32(0)));
}

Variant ServicesObject::grs(const MemberCall& call) {
  std::array<std::string, substitutionCount> texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (call.has(i + 1)) texts[i] = call.text(i + 1);
  }
  return Variant::text(substitute(resourceText(call.int32(0)), texts));
}

Variant ServicesObject::security(const MemberCall&) {
  return Variant::object(makeObject<SecurityObject>(state_).get());
}

// Arguments: action word, object kind, object ID, description, event code.
Variant ServicesObject::logEvent(const MemberCall& call) {
  AuditRecord record;
  record.operation = call.text(0);
  record.objectKind = call.text(1);
  record.objectId = call.int32(2);
  record.description = call.text(3);
  record.eventCode = toInt16(call.value(4));
  state_->audit->add(std::move(record));
  return {};
}

Variant ServicesObject::showHelp(const MemberCall& call) {
  if (state_->showHelp) state_->showHelp(toInt16(call.value(0)));
  return {};
}

Variant ServicesObject::enableCustomize(const MemberCall&) {
  return boolean(state_->settings.customisedDescriptions);
}

Variant ServicesObject::newerHardware(const MemberCall&) {
  return boolean(state_->settings.newerHardware);
}

Variant ServicesObject::operatorId(const MemberCall&) {
  return Variant::int32(state_->settings.operatorId);
}

Variant ServicesObject::workStationId(const MemberCall&) {
  return Variant::int32(state_->settings.workStationId);
}

}  // namespace pelorin::host
