// A parameter of a command, and the list of them, as ADO shows them.
#include <algorithm>

#include "base/text_key.h"
#include "database/ado_numbers.h"
#include "host/ado/ado_command_object.h"
#include "host/ado/ado_failure.h"

namespace pelorin::host {

namespace {

constexpr IID ownParameter = {
    0x3a5b1c22, 0x91d4, 0x4e07, {0xb2, 0x6a, 0x0d, 0x43, 0x58, 0xee, 0x9f, 0x31}};

ParameterType typeForCall(std::int32_t type) {
  switch (type) {
    case ado::data_type::smallInt:
    case ado::data_type::integer:
    case ado::data_type::boolean:
    case ado::data_type::tinyInt:
    case ado::data_type::bigInt:
      return ParameterType::Integer;
    case ado::data_type::single:
    case ado::data_type::real:
      return ParameterType::Double;
    default:
      failAdo(ado::error::invalidArgument);
  }
}

ParameterDirection directionForCall(std::int32_t direction) {
  switch (direction) {
    case ado::direction::input:
      return ParameterDirection::Input;
    case ado::direction::output:
      return ParameterDirection::Output;
    default:
      failAdo(ado::error::invalidArgument);
  }
}

// Names are given with or without the server's mark.
std::string_view plainName(std::string_view name) {
  return name.starts_with('@') ? name.substr(1) : name;
}

}  // namespace

template <std::int32_t AdoParameterObject::*field>
Variant AdoParameterObject::number(const MemberCall& call) {
  if (!call.isPut()) return Variant::int32(this->*field);
  this->*field = toInt32(valueOf(call.putValue()));
  return {};
}

const AdoParameterObject::Member AdoParameterObject::members[7] = {
    {L"Value", &AdoParameterObject::valueMember},
    {L"Name", &AdoParameterObject::nameMember},
    {L"Type", &AdoParameterObject::number<&AdoParameterObject::type_>},
    {L"Direction", &AdoParameterObject::number<&AdoParameterObject::direction_>},
    {L"Size", &AdoParameterObject::number<&AdoParameterObject::size_>},
    {L"Precision", &AdoParameterObject::number<&AdoParameterObject::precision_>},
    {L"NumericScale", &AdoParameterObject::number<&AdoParameterObject::numericScale_>},
};

const AdoParametersObject::Member AdoParametersObject::members[4] = {
    {L"Item", &AdoParametersObject::item},
    {L"Append", &AdoParametersObject::append},
    {L"Count", &AdoParametersObject::count},
    {L"Delete", &AdoParametersObject::remove},
};

bool AdoParameterObject::answersTo(REFIID id) const {
  return IsEqualIID(id, ownParameter);
}

ComPtr<AdoParameterObject> AdoParameterObject::from(IDispatch* object) {
  const auto own = ComPtr<IDispatch>(object).query<IDispatch>(ownParameter);
  return ComPtr<AdoParameterObject>(static_cast<AdoParameterObject*>(own.get()));
}

ProcedureParameter AdoParameterObject::forCall() const {
  return {.name = std::string(plainName(name_)),
          .type = typeForCall(type_),
          .direction = directionForCall(direction_),
          .value = value_};
}

Variant AdoParameterObject::valueMember(const MemberCall& call) {
  if (!call.isPut()) return variantOf(value_);
  value_ = valueOf(call.putValue());
  return {};
}

Variant AdoParameterObject::nameMember(const MemberCall& call) {
  if (!call.isPut()) return Variant::text(name_);
  name_ = toText(valueOf(call.putValue()));
  return {};
}

std::size_t AdoParametersObject::position(const MemberCall& call) const {
  const Value key = call.value(0);
  if (!std::holds_alternative<std::string>(key)) {
    const std::int64_t number = toInt64(key);
    if (number < 0 || static_cast<std::size_t>(number) >= list_.size()) {
      failAdo(ado::error::itemNotFound);
    }
    return static_cast<std::size_t>(number);
  }
  const std::string name = toText(key);
  const auto found = std::find_if(list_.begin(), list_.end(), [&](const auto& parameter) {
    return equalNoCase(plainName(parameter->name()), plainName(name));
  });
  if (found == list_.end()) failAdo(ado::error::itemNotFound);
  return static_cast<std::size_t>(found - list_.begin());
}

Variant AdoParametersObject::item(const MemberCall& call) {
  return Variant::object(list_[position(call)].get());
}

Variant AdoParametersObject::append(const MemberCall& call) {
  ComPtr<AdoParameterObject> parameter = AdoParameterObject::from(call.object(0).get());
  if (!parameter) failAdo(ado::error::invalidArgument);
  list_.push_back(std::move(parameter));
  return {};
}

Variant AdoParametersObject::count(const MemberCall&) {
  return Variant::int32(static_cast<std::int32_t>(list_.size()));
}

Variant AdoParametersObject::remove(const MemberCall& call) {
  list_.erase(list_.begin() + static_cast<std::ptrdiff_t>(position(call)));
  return {};
}

}  // namespace pelorin::host
