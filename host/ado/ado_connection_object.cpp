#include "host/ado/ado_connection_object.h"

#include <utility>

#include "database/ado_numbers.h"
#include "host/ado/ado_errors_object.h"
#include "host/ado/ado_failure.h"
#include "host/ado/ado_recordset_object.h"
#include "win32/com/ado_ids.h"

namespace pelorin::host {

namespace {

// Answered by no other object: tells our own connection from a foreign one.
constexpr IID ownConnection = {
    0x6c0a7d51, 0x2f0e, 0x4b93, {0x9d, 0x4e, 0x51, 0x6f, 0x0b, 0x7a, 0xc8, 0x12}};

}  // namespace

std::vector<ServerMessage> messagesOf(const RunTimeError& error) {
  if (const auto* database = dynamic_cast<const DatabaseError*>(&error)) {
    return database->messages();
  }
  return {{error.description(), error.number(), {}}};
}

template <std::int32_t AdoConnectionObject::*field>
Variant AdoConnectionObject::number(const MemberCall& call) {
  if (!call.isPut()) return Variant::int32(this->*field);
  this->*field = toInt32(valueOf(call.putValue()));
  return {};
}

const AdoConnectionObject::Member AdoConnectionObject::members[18] = {
    {L"ConnectionString", &AdoConnectionObject::connectionString},
    {L"Execute", &AdoConnectionObject::execute},
    {L"Open", &AdoConnectionObject::openMember},
    {L"Close", &AdoConnectionObject::close},
    {L"State", &AdoConnectionObject::stateMember},
    {L"BeginTrans", &AdoConnectionObject::beginTrans},
    {L"CommitTrans", &AdoConnectionObject::commitTrans},
    {L"RollbackTrans", &AdoConnectionObject::rollbackTrans},
    {L"Errors", &AdoConnectionObject::errors},
    {L"Version", &AdoConnectionObject::version},
    {L"Provider", &AdoConnectionObject::provider},
    {L"CommandTimeout", &AdoConnectionObject::number<&AdoConnectionObject::commandTimeout_>},
    {L"ConnectionTimeout", &AdoConnectionObject::number<&AdoConnectionObject::connectionTimeout_>},
    {L"CursorLocation", &AdoConnectionObject::number<&AdoConnectionObject::cursorLocation_>},
    {L"Mode", &AdoConnectionObject::number<&AdoConnectionObject::mode_>},
    {L"IsolationLevel", &AdoConnectionObject::number<&AdoConnectionObject::isolationLevel_>},
    {L"Attributes", &AdoConnectionObject::number<&AdoConnectionObject::attributes_>},
    {L"Cancel", &AdoConnectionObject::cancel},
};

AdoConnectionObject::AdoConnectionObject(OpenConnection open,
                                         std::shared_ptr<ResultConnection> database,
                                         std::string connectionString)
    : open_(std::move(open)),
      database_(std::move(database)),
      connectionString_(std::move(connectionString)) {}

bool AdoConnectionObject::answersTo(REFIID id) const {
  return IsEqualIID(id, ado::oldConnectionInterface) || IsEqualIID(id, ado::connectionInterface) ||
         IsEqualIID(id, ownConnection);
}

ComPtr<AdoConnectionObject> AdoConnectionObject::from(IDispatch* object) {
  const auto own = ComPtr<IDispatch>(object).query<IDispatch>(ownConnection);
  return ComPtr<AdoConnectionObject>(static_cast<AdoConnectionObject*>(own.get()));
}

std::shared_ptr<ResultConnection> AdoConnectionObject::database() const {
  if (!database_) failAdo(ado::error::invalidConnection);
  return database_;
}

Variant AdoConnectionObject::connectionString(const MemberCall& call) {
  if (!call.isPut()) return Variant::text(connectionString_);
  if (database_) failAdo(ado::error::objectOpen);
  connectionString_ = toText(valueOf(call.putValue()));
  return {};
}

// Arguments: CommandText, RecordsAffected, Options.
Variant AdoConnectionObject::execute(const MemberCall& call) {
  const std::string sql = call.text(0);
  const bool rowsWanted = (call.int32Or(2, 0) & ado::command_type::noRecords) == 0;
  if (!rowsWanted) {
    recorded([&](ResultConnection& database) {
      database.execute(sql);
      return true;
    });
    return {};
  }
  auto results = recorded([&](ResultConnection& database) { return database.openResults(sql); });
  const auto rows = makeObject<AdoRecordsetObject>();
  rows->show(std::move(results), ComPtr<AdoConnectionObject>(this), sql);
  return Variant::object(rows.get());
}

// Arguments: ConnectionString, UserID, Password, Options.
Variant AdoConnectionObject::openMember(const MemberCall& call) {
  if (database_) failAdo(ado::error::objectOpen);
  if (call.has(0) && !call.text(0).empty()) connectionString_ = call.text(0);
  database_ = open_(connectionString_);
  return {};
}

Variant AdoConnectionObject::close(const MemberCall&) {
  if (!database_) failAdo(ado::error::objectClosed);
  database_.reset();
  return {};
}

Variant AdoConnectionObject::stateMember(const MemberCall&) {
  return Variant::int32(database_ ? ado::state::open : ado::state::closed);
}

Variant AdoConnectionObject::transaction(const char* statement, int levelChange) {
  recorded([&](ResultConnection& database) {
    database.execute(statement);
    return true;
  });
  transactionLevel_ += levelChange;
  return Variant::int32(transactionLevel_);
}

Variant AdoConnectionObject::beginTrans(const MemberCall&) {
  return transaction("BEGIN TRANSACTION", 1);
}

Variant AdoConnectionObject::commitTrans(const MemberCall&) {
  transaction("COMMIT TRANSACTION", -1);
  return {};
}

Variant AdoConnectionObject::rollbackTrans(const MemberCall&) {
  transaction("ROLLBACK TRANSACTION", -1);
  return {};
}

Variant AdoConnectionObject::errors(const MemberCall& call) {
  const auto list = makeObject<AdoErrorsObject>(messages_);
  return call.count() == 0 ? Variant::object(list.get()) : list->item(call);
}

Variant AdoConnectionObject::version(const MemberCall&) {
  return Variant::text("6.1");
}

Variant AdoConnectionObject::provider(const MemberCall&) {
  return Variant::text("PelorinHost");
}

// Statements run to their end before control comes back: there is nothing to cancel.
Variant AdoConnectionObject::cancel(const MemberCall&) {
  return {};
}

}  // namespace pelorin::host
