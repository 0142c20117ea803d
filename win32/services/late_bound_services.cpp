#include "win32/services/late_bound_services.h"

#include "win32/text/utf16.h"

namespace pelorin {

namespace {

std::string textIn(const Variant& result) {
  return toText(valueOf(result));
}

}  // namespace

// Numbers that the host takes by reference are copies: what it writes to them is not wanted.

std::string LateBoundServices::callGetResourceString(std::int32_t id) {
  LONG copy = id;
  return textIn(host_.call(L"GetResourceString", {Variant::reference(copy)}));
}

std::string LateBoundServices::callGRS(std::int32_t id, const Substitutions& texts) {
  return textIn(
      host_.call(L"GRS", {Variant::int32(id), Variant::text(texts[0]), Variant::text(texts[1]),
                          Variant::text(texts[2]), Variant::text(texts[3]), Variant::text(texts[4]),
                          Variant::text(texts[5]), Variant::text(texts[6]), Variant::text(texts[7]),
                          Variant::text(texts[8])}));
}

bool LateBoundServices::readCanView(std::int16_t componentType, const std::string& subPermission) {
  LateBound security = host_.object(L"Security");
  security.put(L"ComponentType", Variant::int16(componentType));
  LateBound permissions = security.object(L"SubPermissions");
  LateBound permission = permissions.item(Variant::text(subPermission));
  return toBoolean(valueOf(permission.call(L"CanView")));
}

void LateBoundServices::callLogEvent(const std::string& action, const std::string& kind,
                                     std::int32_t id, const std::string& description,
                                     std::int16_t code) {
  LONG copy = id;
  host_.call(L"LogEvent", {Variant::text(action), Variant::text(kind), Variant::reference(copy),
                           Variant::text(description), Variant::int16(code)});
}

void LateBoundServices::callShowHelp(std::int16_t topic) {
  host_.call(L"ShowHelp", {Variant::int16(topic)});
}

bool LateBoundServices::readBoolean(const char* property) {
  return toBoolean(valueOf(host_.call(toWide(property).c_str())));
}

std::int32_t LateBoundServices::readNumber(const char* property) {
  return toInt32(valueOf(host_.call(toWide(property).c_str())));
}

}  // namespace pelorin
