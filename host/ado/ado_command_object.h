// ADO's Command, its Parameters collection and Parameter: a stored procedure called with values in
// and out, or a statement.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/ado/ado_connection_object.h"
#include "host/automation/automation_object.h"

namespace pelorin::host {

class AdoRecordsetObject;

class AdoParameterObject : public AutomationObject<AdoParameterObject> {
 public:
  AdoParameterObject(std::string name, std::int32_t type, std::int32_t direction, Value value)
      : name_(std::move(name)), type_(type), direction_(direction), value_(std::move(value)) {}

  static constexpr const wchar_t* sourceName = L"ADODB.Parameter";
  static const Member members[7];

  // Null for any other object.
  static ComPtr<AdoParameterObject> from(IDispatch* object);

  const std::string& name() const noexcept { return name_; }
  // Error 3001 for a type or direction that a procedure cannot be called with here.
  ProcedureParameter forCall() const;
  void setValue(Value value) { value_ = std::move(value); }

 protected:
  bool answersTo(REFIID id) const override;

 private:
  Variant valueMember(const MemberCall& call);
  Variant nameMember(const MemberCall& call);
  template <std::int32_t AdoParameterObject::*field>
  Variant number(const MemberCall& call);

  std::string name_;
  std::int32_t type_;
  std::int32_t direction_;
  std::int32_t size_ = 0;
  std::int32_t precision_ = 0;
  std::int32_t numericScale_ = 0;
  Value value_;
};

class AdoParametersObject : public AutomationObject<AdoParametersObject> {
 public:
  static constexpr const wchar_t* sourceName = L"ADODB.Parameters";
  static const Member members[4];

  const std::vector<ComPtr<AdoParameterObject>>& list() const noexcept { return list_; }
  // By name or position from 0.
  Variant item(const MemberCall& call);

 private:
  Variant append(const MemberCall& call);
  Variant count(const MemberCall& call);
  Variant remove(const MemberCall& call);
  std::size_t position(const MemberCall& call) const;

  std::vector<ComPtr<AdoParameterObject>> list_;
};

class AdoCommandObject : public AutomationObject<AdoCommandObject> {
 public:
  static constexpr const wchar_t* sourceName = L"ADODB.Command";
  static const Member members[10];

  // Runs the command and lets `rows` show its result. Error 3001 when `command` is none.
  static void openInto(IDispatch* command, AdoRecordsetObject& rows);

 protected:
  bool answersTo(REFIID id) const override;

 private:
  Variant parameters(const MemberCall& call);
  Variant activeConnection(const MemberCall& call);
  Variant commandText(const MemberCall& call);
  Variant createParameter(const MemberCall& call);
  Variant execute(const MemberCall& call);
  Variant name(const MemberCall& call);
  Variant stateMember(const MemberCall& call);
  template <std::int32_t AdoCommandObject::*field>
  Variant number(const MemberCall& call);

  AdoConnectionObject& connection() const;
  bool isProcedure() const;
  void callProcedure();

  ComPtr<AdoConnectionObject> connection_;
  ComPtr<AdoParametersObject> parameters_ = makeObject<AdoParametersObject>();
  std::string text_;
  std::string name_;
  std::int32_t type_ = 8;
  std::int32_t timeout_ = 30;
  std::int32_t prepared_ = 0;
};

}  // namespace pelorin::host
