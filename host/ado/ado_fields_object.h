// ADO's Fields collection and Field: what the record set's current row holds.
#pragma once

#include <string>
#include <utility>

#include "host/ado/ado_recordset_object.h"
#include "host/automation/automation_object.h"

namespace pelorin::host {

class AdoFieldObject : public AutomationObject<AdoFieldObject> {
 public:
  AdoFieldObject(ComPtr<AdoRecordsetObject> rows, std::size_t position)
      : rows_(std::move(rows)), position_(position) {}

  static constexpr const wchar_t* sourceName = L"ADODB.Field";
  static const Member members[4];

 private:
  Variant value(const MemberCall& call);
  Variant name(const MemberCall& call);
  Variant type(const MemberCall& call);
  Variant actualSize(const MemberCall& call);
  const Value& current() const { return rows_->rows().row()[position_]; }

  ComPtr<AdoRecordsetObject> rows_;
  std::size_t position_;
};

class AdoFieldsObject : public AutomationObject<AdoFieldsObject> {
 public:
  explicit AdoFieldsObject(ComPtr<AdoRecordsetObject> rows) : rows_(std::move(rows)) {}

  static constexpr const wchar_t* sourceName = L"ADODB.Fields";
  static const Member members[2];

  // By name or position from 0.
  Variant item(const MemberCall& call);
  std::size_t position(const MemberCall& call) const;

 private:
  Variant count(const MemberCall& call);

  ComPtr<AdoRecordsetObject> rows_;
};

}  // namespace pelorin::host
