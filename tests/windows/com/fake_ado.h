// ADO-shaped objects over results in memory.
//
//   FakeAdo ado;
//   ado.give("select ID from T", {{"ID"}, {{Variant::int32(1)}}});
//   AdoConnection connection(ComPtr<IDispatch>(ado.connection.get()));
#pragma once

#include <map>
#include <memory>
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
  // A record set over the result, as Execute gives it.
  ComPtr<FakeObject> recordset(const FakeResult& result);

  ComPtr<FakeObject> connection = FakeObject::make();
  std::map<std::string, FakeResult> results;
  std::map<std::string, std::wstring> failures;
  std::vector<std::string> statements;
  // Shared with the record sets, which may outlive this.
  std::shared_ptr<int> openRecordsets = std::make_shared<int>(0);
  std::shared_ptr<std::vector<int>> blockSizes = std::make_shared<std::vector<int>>();
};

}  // namespace pelorin::test
