#include "host/ado/ado_fields_object.h"

#include "database/ado_numbers.h"
#include "host/ado/ado_failure.h"

namespace pelorin::host {

namespace {

std::int32_t typeOf(const Value& value) {
  if (std::holds_alternative<std::int64_t>(value)) return ado::data_type::integer;
  if (std::holds_alternative<double>(value)) return ado::data_type::real;
  if (std::holds_alternative<bool>(value)) return ado::data_type::boolean;
  if (std::holds_alternative<Date>(value)) return ado::data_type::date;
  return ado::data_type::text;
}

}  // namespace

const AdoFieldObject::Member AdoFieldObject::members[4] = {
    {L"Value", &AdoFieldObject::value},
    {L"Name", &AdoFieldObject::name},
    {L"Type", &AdoFieldObject::type},
    {L"ActualSize", &AdoFieldObject::actualSize},
};

const AdoFieldsObject::Member AdoFieldsObject::members[2] = {
    {L"Item", &AdoFieldsObject::item},
    {L"Count", &AdoFieldsObject::count},
};

Variant AdoFieldObject::value(const MemberCall& call) {
  if (call.isPut()) failAdo(ado::error::notSupported);
  return variantOf(current());
}

Variant AdoFieldObject::name(const MemberCall&) {
  return Variant::text(rows_->rows().columns()[position_]);
}

Variant AdoFieldObject::type(const MemberCall&) {
  return Variant::int32(typeOf(current()));
}

Variant AdoFieldObject::actualSize(const MemberCall&) {
  return Variant::int32(static_cast<std::int32_t>(toText(current()).size()));
}

std::size_t AdoFieldsObject::position(const MemberCall& call) const {
  const std::vector<std::string>& columns = rows_->rows().columns();
  const Value key = call.value(0);
  if (std::holds_alternative<std::string>(key)) return columnOf(columns, toText(key));
  const std::int64_t position = toInt64(key);
  if (position < 0 || static_cast<std::size_t>(position) >= columns.size()) {
    failAdo(ado::error::itemNotFound);
  }
  return static_cast<std::size_t>(position);
}

Variant AdoFieldsObject::item(const MemberCall& call) {
  return Variant::object(makeObject<AdoFieldObject>(rows_, position(call)).get());
}

Variant AdoFieldsObject::count(const MemberCall&) {
  return Variant::int32(static_cast<std::int32_t>(rows_->rows().columns().size()));
}

}  // namespace pelorin::host
