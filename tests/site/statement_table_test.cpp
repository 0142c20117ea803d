// Every statement of the table runs over the embedded site.
#include "site/statement_call.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using site::SiteStatement;

class EveryStatement : public SiteTest, public testing::WithParamInterface<SiteStatement> {};

void expectColumn(const RecordSet& records, const std::string& column) {
  if (column.front() == '#') {
    EXPECT_NO_THROW(records.value(std::stoi(column.substr(1))));
  } else {
    EXPECT_NO_THROW(records.value(column)) << column;
  }
}

TEST_P(EveryStatement, RunsAndGivesItsColumns) {
  const SiteStatement& statement = GetParam();
  if (statement.command) {
    ProcedureCall call = site::commandCall(statement);
    connection_->execute(call);
    return;
  }
  if (statement.writes) {
    connection_->execute(statement.text);
    return;
  }
  RecordSet records = connection_->open(statement.text);
  ASSERT_TRUE(records.next()) << "the sample values find no row";
  for (const std::string& column : statement.columns) expectColumn(records, column);
}

std::string statementName(const testing::TestParamInfo<SiteStatement>& info) {
  std::string name = info.param.name;
  for (char& c : name) c = c == '.' ? '_' : c;
  return name;
}

INSTANTIATE_TEST_SUITE_P(Component, EveryStatement, testing::ValuesIn(site::siteStatements()),
                         statementName);

TEST(StatementTable, EveryPlaceHasASample) {
  for (const SiteStatement& statement : site::siteStatements()) {
    EXPECT_EQ(statement.text.find('{'), std::string::npos) << statement.name;
    EXPECT_EQ(statement.writes, statement.columns.empty()) << statement.name;
  }
}

}  // namespace
}  // namespace pelorin
