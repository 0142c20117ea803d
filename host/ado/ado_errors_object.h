// ADO's Errors collection and what is in it.
#pragma once

#include <utility>
#include <vector>

#include "host/automation/automation_object.h"
#include "host/core/result_connection.h"

namespace pelorin::host {

class AdoErrorObject : public AutomationObject<AdoErrorObject> {
 public:
  explicit AdoErrorObject(ServerMessage message) : message_(std::move(message)) {}

  static constexpr const wchar_t* sourceName = L"ADODB.Error";
  static const Member members[5];

 private:
  Variant description(const MemberCall&) const { return Variant::text(message_.text); }
  Variant number(const MemberCall&) const { return Variant::int32(message_.nativeNumber); }
  Variant sqlState(const MemberCall&) const { return Variant::text(message_.sqlState); }
  Variant source(const MemberCall&) { return Variant::text("PelorinHost"); }

  ServerMessage message_;
};

class AdoErrorsObject : public AutomationObject<AdoErrorsObject> {
 public:
  explicit AdoErrorsObject(std::vector<ServerMessage> messages) : messages_(std::move(messages)) {}

  static constexpr const wchar_t* sourceName = L"ADODB.Errors";
  static const Member members[3];

  // By position from 0.
  Variant item(const MemberCall& call);

 private:
  Variant count(const MemberCall& call);
  Variant clear(const MemberCall& call);

  std::vector<ServerMessage> messages_;
};

}  // namespace pelorin::host
