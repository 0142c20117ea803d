// What every connection keeps, whatever is behind it. A program that has a kind of connection
// compiles connection_contract.cpp and instantiates the suites with it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "database/connection.h"
#include "tests/contract/server_errors.h"

namespace pelorin::test {

// A row of the table that the suite fills.
using ViewGroup = std::pair<Value, Value>;  // ID, Description

// One connection, and what only its kind can arrange.
class ContractSubject {
 public:
  ContractSubject() = default;
  ContractSubject(const ContractSubject&) = delete;
  ContractSubject& operator=(const ContractSubject&) = delete;
  virtual ~ContractSubject() = default;

  virtual Connection& connection() = 0;
  // `viewGroups` gives these rows, in rising order of their numbers, and no others.
  virtual void fill(const std::vector<ViewGroup>& rows);
  // A statement that gives the rows below row `row` (from 0) of those filled and then fails.
  virtual std::string failingFrom(std::size_t row);
  // Lets this error of the server come to the caller.
  virtual void raise(const site::ServerError& error) { connection().execute(error.statement); }
};

inline constexpr const char* viewGroups = "select ID, Description from DVR_ViewGroups order by ID";

enum class Ability {
  ServerErrors,      // the server's errors have the numbers that ADO gives them
  Procedures,        // a procedure is called and sets its output parameter
  TextComparison,    // texts are found and ordered as a server does it
  KeysWithoutNulls,  // a key takes no null
};

struct ConnectionKind {
  std::string name;
  std::function<std::unique_ptr<ContractSubject>()> make;
  // What this kind cannot do, with the reason.
  std::map<Ability, std::string> lacking = {};
};

template <class Subject>
ConnectionKind kindOf(const std::string& name, std::map<Ability, std::string> lacking = {}) {
  return {name, [] { return std::make_unique<Subject>(); }, std::move(lacking)};
}

inline void PrintTo(const ConnectionKind& kind, std::ostream* out) {
  *out << kind.name;
}

inline std::string kindName(const testing::TestParamInfo<ConnectionKind>& kind) {
  return kind.param.name;
}

// Those of `kinds` that have the ability. Tests of it are made for these alone; the others have a
// test each that tells what they lack, and why.
std::vector<ConnectionKind> able(const std::vector<ConnectionKind>& kinds, Ability ability);

class ConnectionTest : public testing::TestWithParam<ConnectionKind> {
 protected:
  void fill(std::size_t count);
  RecordSet open() { return connection.open(viewGroups); }
  std::string one(const std::string& sql);

  std::unique_ptr<ContractSubject> subject = GetParam().make();
  Connection& connection = subject->connection();
};

// Every connection passes these.
class ConnectionContract : public ConnectionTest {};
// And these, unless its kind says why it cannot.
class ProcedureContract : public ConnectionTest {};
class TextContract : public ConnectionTest {};
class KeyContract : public ConnectionTest {};
class ServerErrorContract
    : public testing::TestWithParam<std::tuple<ConnectionKind, site::ServerError>> {};

std::string errorCaseName(
    const testing::TestParamInfo<std::tuple<ConnectionKind, site::ServerError>>& error);

// All suites for these kinds; once in a program.
#define PELORIN_CONNECTION_CONTRACT(kinds)                                                         \
  INSTANTIATE_TEST_SUITE_P(Kinds, ConnectionContract, testing::ValuesIn(kinds), kindName);         \
  PELORIN_CONTRACT_OF_THE_ABLE(ProcedureContract, Procedures, kinds);                              \
  PELORIN_CONTRACT_OF_THE_ABLE(TextContract, TextComparison, kinds);                               \
  PELORIN_CONTRACT_OF_THE_ABLE(KeyContract, KeysWithoutNulls, kinds);                              \
  INSTANTIATE_TEST_SUITE_P(Kinds, ServerErrorContract,                                             \
                           testing::Combine(testing::ValuesIn(able(kinds, Ability::ServerErrors)), \
                                            testing::ValuesIn(site::serverErrors)),                \
                           errorCaseName)

#define PELORIN_CONTRACT_OF_THE_ABLE(suite, ability, kinds) \
  INSTANTIATE_TEST_SUITE_P(Kinds, suite, testing::ValuesIn(able(kinds, Ability::ability)), kindName)

}  // namespace pelorin::test
