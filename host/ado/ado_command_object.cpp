#include "host/ado/ado_command_object.h"

#include "database/ado_numbers.h"
#include "host/ado/ado_failure.h"
#include "host/ado/ado_recordset_object.h"

namespace pelorin::host {

namespace {

constexpr IID ownCommand = {
    0x8e17c0f4, 0x53ab, 0x4d68, {0xa0, 0x1f, 0xc7, 0x29, 0x64, 0x15, 0xbd, 0x05}};

}  // namespace

template <std::int32_t AdoCommandObject::*field>
Variant AdoCommandObject::number(const MemberCall& call) {
  if (!call.isPut()) return Variant::int32(this->*field);
  this->*field = toInt32(valueOf(call.putValue()));
  return {};
}

const AdoCommandObject::Member AdoCommandObject::members[10] = {
    {L"Parameters", &AdoCommandObject::parameters},
    {L"ActiveConnection", &AdoCommandObject::activeConnection},
    {L"CommandText", &AdoCommandObject::commandText},
    {L"CommandType", &AdoCommandObject::number<&AdoCommandObject::type_>},
    {L"CommandTimeout", &AdoCommandObject::number<&AdoCommandObject::timeout_>},
    {L"Prepared", &AdoCommandObject::number<&AdoCommandObject::prepared_>},
    {L"CreateParameter", &AdoCommandObject::createParameter},
    {L"Execute", &AdoCommandObject::execute},
    {L"Name", &AdoCommandObject::name},
    {L"State", &AdoCommandObject::stateMember},
};

bool AdoCommandObject::answersTo(REFIID id) const {
  return IsEqualIID(id, ownCommand);
}

AdoConnectionObject& AdoCommandObject::connection() const {
  if (!connection_) failAdo(ado::error::invalidConnection);
  return *connection_.get();
}

bool AdoCommandObject::isProcedure() const {
  return type_ == ado::command_type::storedProcedure;
}

Variant AdoCommandObject::parameters(const MemberCall& call) {
  return call.count() == 0 ? Variant::object(parameters_.get()) : parameters_->item(call);
}

Variant AdoCommandObject::activeConnection(const MemberCall& call) {
  if (!call.isPut()) return Variant::object(connection_.get());
  const ComPtr<IDispatch> given = objectOf(call.putValue());
  connection_ = AdoConnectionObject::from(given.get());
  if (given && !connection_) failAdo(ado::error::invalidArgument);
  return {};
}

Variant AdoCommandObject::commandText(const MemberCall& call) {
  if (!call.isPut()) return Variant::text(text_);
  text_ = toText(valueOf(call.putValue()));
  return {};
}

Variant AdoCommandObject::name(const MemberCall& call) {
  if (!call.isPut()) return Variant::text(name_);
  name_ = toText(valueOf(call.putValue()));
  return {};
}

Variant AdoCommandObject::stateMember(const MemberCall&) {
  return Variant::int32(ado::state::closed);
}

// Arguments: Name, Type, Direction, Size, Value.
Variant AdoCommandObject::createParameter(const MemberCall& call) {
  const auto parameter = makeObject<AdoParameterObject>(
      call.has(0) ? call.text(0) : std::string(), call.int32Or(1, ado::data_type::integer),
      call.int32Or(2, ado::direction::input), call.has(4) ? call.value(4) : Value(Null{}));
  return Variant::object(parameter.get());
}

void AdoCommandObject::callProcedure() {
  ProcedureCall procedure{.procedure = text_, .parameters = {}};
  for (const auto& parameter : parameters_->list()) {
    procedure.parameters.push_back(parameter->forCall());
  }
  connection().recorded([&](ResultConnection& database) {
    database.execute(procedure);
    return true;
  });
  for (std::size_t i = 0; i < procedure.parameters.size(); ++i) {
    ProcedureParameter& parameter = procedure.parameters[i];
    if (parameter.direction == ParameterDirection::Output) {
      parameters_->list()[i]->setValue(std::move(parameter.value));
    }
  }
}

void AdoCommandObject::openInto(IDispatch* command, AdoRecordsetObject& rows) {
  const auto own = ComPtr<IDispatch>(command).query<IDispatch>(ownCommand);
  if (!own) failAdo(ado::error::invalidArgument);
  const auto& self = *static_cast<AdoCommandObject*>(own.get());
  // Procedures with rows and parameters are called by their text.
  if (!self.parameters_->list().empty()) failAdo(ado::error::notSupported);
  const std::string sql = self.isProcedure() ? "EXECUTE " + self.text_ : self.text_;
  rows.show(self.connection().recorded(
                [&](ResultConnection& database) { return database.openResults(sql); }),
            self.connection_, sql);
}

// Arguments: RecordsAffected, Parameters, Options.
Variant AdoCommandObject::execute(const MemberCall& call) {
  if (call.has(1)) failAdo(ado::error::notSupported);
  const bool rowsWanted = (call.int32Or(2, 0) & ado::command_type::noRecords) == 0;
  if (isProcedure() && (!rowsWanted || !parameters_->list().empty())) {
    callProcedure();
    return {};
  }
  const auto rows = makeObject<AdoRecordsetObject>();
  openInto(this, *rows.get());
  return rowsWanted ? Variant::object(rows.get()) : Variant();
}

}  // namespace pelorin::host
