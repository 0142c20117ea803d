#include "host/ado/ado_recordset_object.h"

#include <utility>

#include "database/ado_numbers.h"
#include "host/ado/ado_command_object.h"
#include "host/ado/ado_failure.h"
#include "host/ado/ado_fields_object.h"
#include "win32/com/safe_array.h"

namespace pelorin::host {

namespace {

// Two dimensions, fields and rows, the fields running fastest.
Variant rowArray(const std::vector<Value>& cells, std::size_t columns) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(columns), 0},
                              {static_cast<ULONG>(cells.size() / columns), 0}};
  SafeArray array(SafeArrayCreate(VT_VARIANT, 2, bounds));
  if (array.get() == nullptr) throw std::bad_alloc();
  {
    const ArrayAccess<VARIANT> access(array.get());
    for (std::size_t i = 0; i < cells.size(); ++i) {
      Variant cell = variantOf(cells[i]);
      access.elements()[i] = std::exchange(static_cast<VARIANT&>(cell), VARIANT{});
    }
  }
  Variant result;
  result.vt = VT_ARRAY | VT_VARIANT;
  result.parray = array.release();
  return result;
}

}  // namespace

template <std::int32_t AdoRecordsetObject::*field>
Variant AdoRecordsetObject::number(const MemberCall& call) {
  if (!call.isPut()) return Variant::int32(this->*field);
  this->*field = toInt32(valueOf(call.putValue()));
  return {};
}

const AdoRecordsetObject::Member AdoRecordsetObject::members[20] = {
    {L"Fields", &AdoRecordsetObject::fields},
    {L"Open", &AdoRecordsetObject::open},
    {L"Close", &AdoRecordsetObject::close},
    {L"State", &AdoRecordsetObject::stateMember},
    {L"EOF", &AdoRecordsetObject::atEnd},
    {L"BOF", &AdoRecordsetObject::atBegin},
    {L"MoveNext", &AdoRecordsetObject::moveNext},
    {L"MoveFirst", &AdoRecordsetObject::moveFirst},
    {L"GetRows", &AdoRecordsetObject::getRows},
    {L"NextRecordset", &AdoRecordsetObject::nextRecordset},
    {L"ActiveConnection", &AdoRecordsetObject::activeConnection},
    {L"Source", &AdoRecordsetObject::source},
    {L"RecordCount", &AdoRecordsetObject::recordCount},
    {L"Supports", &AdoRecordsetObject::supports},
    {L"CursorType", &AdoRecordsetObject::number<&AdoRecordsetObject::cursorType_>},
    {L"LockType", &AdoRecordsetObject::number<&AdoRecordsetObject::lockType_>},
    {L"CursorLocation", &AdoRecordsetObject::number<&AdoRecordsetObject::cursorLocation_>},
    {L"CacheSize", &AdoRecordsetObject::number<&AdoRecordsetObject::cacheSize_>},
    {L"MaxRecords", &AdoRecordsetObject::number<&AdoRecordsetObject::maxRecords_>},
    {L"Collect", &AdoRecordsetObject::collect},
};

void AdoRecordsetObject::show(std::unique_ptr<ResultCursor> results,
                              ComPtr<AdoConnectionObject> connection, std::string source) {
  reader_ = std::make_shared<ResultReader>(std::move(results));
  connection_ = std::move(connection);
  source_ = std::move(source);
  moved_ = false;
}

const ResultReader& AdoRecordsetObject::rows() const {
  if (!hasRows()) failAdo(ado::error::objectClosed);
  return *reader_;
}

ResultReader& AdoRecordsetObject::openRows() {
  if (!hasRows()) failAdo(ado::error::objectClosed);
  return *reader_;
}

Variant AdoRecordsetObject::fields(const MemberCall& call) {
  static_cast<void>(rows());
  const auto list = makeObject<AdoFieldsObject>(ComPtr<AdoRecordsetObject>(this));
  return call.count() == 0 ? Variant::object(list.get()) : list->item(call);
}

// A field's value in one step, as scripting hosts ask for rs!Name.
Variant AdoRecordsetObject::collect(const MemberCall& call) {
  const auto list = makeObject<AdoFieldsObject>(ComPtr<AdoRecordsetObject>(this));
  return variantOf(rows().row()[list->position(call)]);
}

void AdoRecordsetObject::setConnection(IDispatch* connection) {
  connection_ = AdoConnectionObject::from(connection);
  if (!connection_) failAdo(ado::error::invalidArgument);
}

// Arguments: Source (text or command), ActiveConnection, CursorType, LockType, Options.
Variant AdoRecordsetObject::open(const MemberCall& call) {
  if (hasRows()) failAdo(ado::error::objectOpen);
  if (call.has(1)) setConnection(call.object(1).get());
  if (const ComPtr<IDispatch> command = call.object(0)) {
    AdoCommandObject::openInto(command.get(), *this);
    return {};
  }
  if (call.has(0)) source_ = call.text(0);
  if (!connection_) failAdo(ado::error::invalidConnection);
  reader_ = std::make_shared<ResultReader>(connection_->recorded(
      [this](ResultConnection& database) { return database.openResults(source_); }));
  moved_ = false;
  return {};
}

Variant AdoRecordsetObject::close(const MemberCall&) {
  static_cast<void>(rows());
  reader_.reset();
  return {};
}

Variant AdoRecordsetObject::stateMember(const MemberCall&) {
  return Variant::int32(hasRows() ? ado::state::open : ado::state::closed);
}

Variant AdoRecordsetObject::atEnd(const MemberCall&) const {
  return boolean(rows().atEnd());
}

Variant AdoRecordsetObject::atBegin(const MemberCall&) const {
  return boolean(rows().atEnd() && !moved_);
}

Variant AdoRecordsetObject::moveNext(const MemberCall&) {
  ResultReader& reader = openRows();
  connection_->errorRecorded([&] { reader.next(); });
  moved_ = true;
  return {};
}

// What has been read is gone: only a record set that stands at its start can go there.
Variant AdoRecordsetObject::moveFirst(const MemberCall&) const {
  if (rows().atEnd() && !moved_) failAdo(ado::error::noCurrentRecord);
  if (moved_) failAdo(ado::error::notSupported);
  return {};
}

// Arguments: Rows (-1, the default, is all), Start, Fields.
Variant AdoRecordsetObject::getRows(const MemberCall& call) {
  if (call.has(1) || call.has(2)) failAdo(ado::error::notSupported);
  ResultReader& reader = openRows();
  if (reader.atEnd()) failAdo(ado::error::noCurrentRecord);
  moved_ = true;
  const std::vector<Value> cells =
      connection_->errorRecorded([&] { return reader.take(call.int32Or(0, -1)); });
  return rowArray(cells, reader.columns().size());
}

// As with every server-side cursor this record set is closed by going on to the next result.
Variant AdoRecordsetObject::nextRecordset(const MemberCall&) {
  if (!reader_) failAdo(ado::error::objectClosed);
  const std::shared_ptr<ResultReader> reader = std::exchange(reader_, nullptr);
  if (!reader->nextResult()) return Variant::object(nullptr);
  const auto next = makeObject<AdoRecordsetObject>();
  next->reader_ = reader;
  next->connection_ = connection_;
  next->source_ = source_;
  return Variant::object(next.get());
}

Variant AdoRecordsetObject::activeConnection(const MemberCall& call) {
  if (!call.isPut()) return Variant::object(connection_.get());
  if (hasRows()) failAdo(ado::error::objectOpen);
  setConnection(objectOf(call.putValue()).get());
  return {};
}

Variant AdoRecordsetObject::source(const MemberCall& call) {
  if (!call.isPut()) return Variant::text(source_);
  if (hasRows()) failAdo(ado::error::objectOpen);
  source_ = toText(valueOf(call.putValue()));
  return {};
}

// Unknown for a forward-only record set.
Variant AdoRecordsetObject::recordCount(const MemberCall&) const {
  static_cast<void>(rows());
  return Variant::int32(-1);
}

Variant AdoRecordsetObject::supports(const MemberCall&) {
  return boolean(false);
}

}  // namespace pelorin::host
