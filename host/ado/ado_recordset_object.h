// ADO's Recordset: the results of one statement, forward-only and read-only.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/ado/ado_connection_object.h"
#include "host/ado/result_reader.h"
#include "host/automation/automation_object.h"

namespace pelorin::host {

class AdoRecordsetObject : public AutomationObject<AdoRecordsetObject> {
 public:
  static constexpr const wchar_t* sourceName = L"ADODB.Recordset";
  static const Member members[20];

  // Starts with the first result.
  void show(std::unique_ptr<ResultCursor> results, ComPtr<AdoConnectionObject> connection,
            std::string source);

  // Error 3704 when closed.
  const ResultReader& rows() const;

 private:
  Variant fields(const MemberCall& call);
  Variant open(const MemberCall& call);
  Variant close(const MemberCall& call);
  Variant stateMember(const MemberCall& call);
  Variant atEnd(const MemberCall& call) const;
  Variant atBegin(const MemberCall& call) const;
  Variant moveNext(const MemberCall& call);
  Variant moveFirst(const MemberCall& call) const;
  Variant getRows(const MemberCall& call);
  Variant nextRecordset(const MemberCall& call);
  Variant activeConnection(const MemberCall& call);
  Variant source(const MemberCall& call);
  Variant recordCount(const MemberCall& call) const;
  Variant supports(const MemberCall& call);
  Variant collect(const MemberCall& call);
  template <std::int32_t AdoRecordsetObject::*field>
  Variant number(const MemberCall& call);

  ResultReader& openRows();
  bool hasRows() const { return reader_ && reader_->hasRows(); }
  void setConnection(IDispatch* connection);

  std::shared_ptr<ResultReader> reader_;  // shared with the record set of the next result
  ComPtr<AdoConnectionObject> connection_;
  std::string source_;
  bool moved_ = false;
  std::int32_t cursorType_ = 0;
  std::int32_t lockType_ = 1;
  std::int32_t cursorLocation_ = 2;
  std::int32_t cacheSize_ = 1;
  std::int32_t maxRecords_ = 0;
};

}  // namespace pelorin::host
