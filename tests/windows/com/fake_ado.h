// ADO-shaped objects over results in memory.
//
//   FakeAdo ado;
//   ado.give("select ID from T", {{"ID"}, {{Variant::int32(1)}}});
//   AdoConnection connection(ComPtr<IDispatch>(ado.connection.get()));
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/windows/com/fake_object.h"

namespace pelorin::test {

struct FakeResult {
  std::vector<std::string> columns;
  std::vector<std::vector<Variant>> rows;
};

struct FakeAdo {
  FakeAdo();

  void give(const std::string& sql, FakeResult result) { results[sql] = std::move(result); }
  // A record set over the result, as Execute gives it. The block with row `failingRow` (from 0) is
  // lost, as those of a server's record set are.
  ComPtr<FakeObject> recordset(const FakeResult& result);
  std::optional<std::size_t> failingRow;

  ComPtr<FakeObject> connection = FakeObject::make();
  std::map<std::string, FakeResult> results;
  std::map<std::string, std::wstring> failures;
  // The connection's own view of itself.
  std::int32_t state = 1;
  std::vector<std::string> sqlStates;  // of its errors
  std::vector<std::string> statements;
  // Shared with the record sets, which may outlive this.
  std::shared_ptr<int> openRecordsets = std::make_shared<int>(0);
  std::shared_ptr<std::vector<int>> blockSizes = std::make_shared<std::vector<int>>();
};

}  // namespace pelorin::test
