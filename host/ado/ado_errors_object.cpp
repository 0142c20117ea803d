#include "host/ado/ado_errors_object.h"

#include "database/ado_numbers.h"
#include "host/ado/ado_failure.h"

namespace pelorin::host {

const AdoErrorObject::Member AdoErrorObject::members[5] = {
    {L"Description", &AdoErrorObject::description}, {L"Number", &AdoErrorObject::number},
    {L"NativeError", &AdoErrorObject::number},      {L"SQLState", &AdoErrorObject::sqlState},
    {L"Source", &AdoErrorObject::source},
};

const AdoErrorsObject::Member AdoErrorsObject::members[3] = {
    {L"Item", &AdoErrorsObject::item},
    {L"Count", &AdoErrorsObject::count},
    {L"Clear", &AdoErrorsObject::clear},
};

Variant AdoErrorsObject::item(const MemberCall& call) {
  const std::int32_t index = call.int32(0);
  if (index < 0 || static_cast<std::size_t>(index) >= messages_.size()) {
    failAdo(ado::error::itemNotFound);
  }
  const auto error = makeObject<AdoErrorObject>(messages_[static_cast<std::size_t>(index)]);
  return Variant::object(error.get());
}

Variant AdoErrorsObject::count(const MemberCall&) {
  return Variant::int32(static_cast<std::int32_t>(messages_.size()));
}

Variant AdoErrorsObject::clear(const MemberCall&) {
  messages_.clear();
  return {};
}

}  // namespace pelorin::host
