#include "tests/windows/com/fake_ado.h"

#include <algorithm>

#include "win32/com/safe_array.h"

namespace pelorin::test {

namespace {

constexpr HRESULT noCurrentRecord = static_cast<HRESULT>(0x800A0BCD);
constexpr HRESULT errorsInCommand = static_cast<HRESULT>(0x80040E14);

// A block as GetRows gives it: columns first, rows second.
Variant block(const FakeResult& result, std::size_t first, std::size_t rows) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(result.columns.size()), 0},
                              {static_cast<ULONG>(rows), 0}};
  SafeArray array(SafeArrayCreate(VT_VARIANT, 2, bounds));
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < result.columns.size(); ++column) {
      LONG place[2] = {static_cast<LONG>(column), static_cast<LONG>(row)};
      Variant cell = result.rows[first + row][column];
      check(SafeArrayPutElement(array.get(), place, &cell));
    }
  }
  Variant variant;
  variant.vt = VT_ARRAY | VT_VARIANT;
  variant.parray = array.release();
  return variant;
}

ComPtr<FakeObject> fieldsOf(const FakeResult& result) {
  auto fields = FakeObject::make();
  fields->on(L"Count", answer(Variant::int32(static_cast<std::int32_t>(result.columns.size()))));
  fields->onDefault([columns = result.columns](Call& call) {
    auto field = FakeObject::make();
    const auto index = static_cast<std::size_t>(call.arguments[0]->lVal);
    field->on(L"Name", answer(Variant::text(columns[index])));
    return answerObject(field)(call);
  });
  return fields;
}

ComPtr<FakeObject> errorsOf(const std::vector<std::string>& sqlStates) {
  auto errors = FakeObject::make();
  errors->on(L"Count", answer(Variant::int32(static_cast<std::int32_t>(sqlStates.size()))));
  errors->onDefault([sqlStates](Call& call) {
    auto error = FakeObject::make();
    const auto index = static_cast<std::size_t>(call.arguments[0]->lVal);
    error->on(L"SQLState", answer(Variant::text(sqlStates[index])));
    return answerObject(error)(call);
  });
  return errors;
}

Variant truth(bool value) {
  Variant variant;
  variant.vt = VT_BOOL;
  variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return variant;
}

}  // namespace

ComPtr<FakeObject> FakeAdo::recordset(const FakeResult& result) {
  auto rows = FakeObject::make();
  const auto next = std::make_shared<std::size_t>(0);
  const auto open = openRecordsets;
  const auto blocks = blockSizes;
  const auto failing = failingRow;
  ++*open;
  rows->on(L"State", answer(Variant::int32(1)));
  rows->on(L"Fields", answerObject(fieldsOf(result)));
  rows->on(L"EOF", [=](Call& call) { return answer(truth(*next == result.rows.size()))(call); });
  rows->on(L"GetRows", [=](Call& call) {
    const std::size_t left = result.rows.size() - *next;
    if (left == 0) return fail(noCurrentRecord, L"Either BOF or EOF is True")(call);
    const auto wanted = static_cast<std::size_t>(call.arguments[0]->lVal);
    blocks->push_back(static_cast<int>(wanted));
    const std::size_t count = std::min(wanted, left);
    if (failing && *failing < *next + count) return fail(E_FAIL, L"block lost")(call);
    const Variant cells = block(result, *next, count);
    *next += count;
    return answer(cells)(call);
  });
  rows->on(L"Close", [=](Call&) {
    --*open;
    return S_OK;
  });
  return rows;
}

FakeAdo::FakeAdo() {
  connection->on(L"Execute", [this](Call& call) {
    const std::string sql = toText(valueOf(*call.arguments[0]));
    statements.push_back(sql);
    const auto failure = failures.find(sql);
    if (failure != failures.end()) return fail(errorsInCommand, failure->second)(call);
    return answerObject(recordset(results[sql]))(call);
  });
  connection->on(L"BeginTrans", answer(Variant::int32(1)));
  connection->on(L"ConnectionString", answer(Variant::text("fake")));
  connection->on(L"State", [this](Call& call) { return answer(Variant::int32(state))(call); });
  connection->on(L"Errors", [this](Call& call) { return answerObject(errorsOf(sqlStates))(call); });
}

}  // namespace pelorin::test
