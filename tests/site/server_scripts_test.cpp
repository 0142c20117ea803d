// The scripts for SQL Server against the embedded database: both come from one source, and what the
// scripts say is read back here and compared with what the embedded engine has.
#include "site/server_scripts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <tuple>

#include "base/text_key.h"
#include "site/batch_reader.h"
#include "site/component_rights.h"
#include "site/engine.h"
#include "site/fill_database.h"
#include "site/large_site.h"
#include "site/procedure.h"
#include "site/schema.h"
#include "site/sql_tokens.h"
#include "site/statement_table.h"
#include "site/transact_sql.h"
#include "test_paths.h"
#include "tests/site/fresh_site.h"
#include "tests/site/script_batches.h"
#include "tests/site/site_fixture.h"

namespace pelorin::site {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n') {
      lines.emplace_back();
    } else {
      lines.back().push_back(c);
    }
  }
  return lines;
}

class EveryScript : public testing::TestWithParam<std::string> {};

TEST_P(EveryScript, HasOnlyLinesThatEveryToolTakes) {
  for (const std::string& batch : script(GetParam())) {
    EXPECT_FALSE(batch.empty());
    for (const std::string& line : linesOf(batch)) {
      EXPECT_LT(line.size(), 4000U);
      EXPECT_NE(lowerCase(line), "go");
      EXPECT_THAT(line, Not(HasSubstr("$(")));
      for (const char c : line) EXPECT_TRUE(c >= ' ' && c < 0x7F) << line;
    }
  }
}

TEST_P(EveryScript, DividesIntoTokensWithBalancedParentheses) {
  for (const std::string& batch : script(GetParam())) {
    int depth = 0;
    for (const Token& token : tokenize(batch)) {
      EXPECT_NE(token.kind, Token::Kind::Broken) << token.text << "\n" << batch;
      depth += token.isSymbol("(") ? 1 : (token.isSymbol(")") ? -1 : 0);
      EXPECT_GE(depth, 0) << batch;
    }
    EXPECT_EQ(depth, 0) << batch;
  }
}

TEST_P(EveryScript, DropsAndReplacesNothing) {
  for (const std::string& batch : script(GetParam())) {
    EXPECT_FALSE(std::regex_search(
        batch, std::regex("\\b(drop|alter|truncate|merge)\\b", std::regex::icase)))
        << batch;
  }
}

INSTANTIATE_TEST_SUITE_P(Server, EveryScript,
                         testing::Values("1-tables.sql", "2-procedures.sql", "3-data.sql",
                                         "4-rights.sql", "5-check.sql"),
                         [](const auto& name) { return "script" + name.param.substr(0, 1); });

// Column name, type, whether required, place in the key from 1 or 0.
using ColumnFact = std::tuple<std::string, std::string, bool, int>;
using TableFacts = std::vector<ColumnFact>;

std::vector<std::string> bracketedNames(const std::string& text) {
  std::vector<std::string> names;
  for (const Token& token : tokenize(text)) {
    if (token.kind == Token::Kind::Name) names.push_back(token.text);
  }
  return names;
}

// What a `create table` batch says.
TableFacts serverTable(const std::string& batch) {
  TableFacts facts;
  static const std::regex column(
      "  \\[(\\w+)\\] (\\w+(?:\\(\\d+\\))?)( identity\\(1, 1\\))? "
      "(not null|null),?");
  std::smatch match;
  for (const std::string& line : linesOf(batch)) {
    if (std::regex_match(line, match, column)) {
      const std::string type = match[3].matched ? "identity" : match[2].str();
      facts.emplace_back(match[1], type, match[4] == "not null", 0);
    } else if (line.find("primary key") != std::string::npos) {
      const std::vector<std::string> key = bracketedNames(line.substr(line.find("primary key")));
      for (auto& [name, type, required, place] : facts) {
        const auto found = std::find(key.begin(), key.end(), name);
        if (found != key.end()) place = static_cast<int>(found - key.begin()) + 1;
      }
    }
  }
  return facts;
}

class BothEngines : public testing::Test {
 protected:
  BothEngines() { createTables(*engine_); }

  std::vector<std::vector<std::string>> embedded(const std::string& sql) {
    std::vector<std::vector<std::string>> rows;
    EngineStatement statement(engine_, sql);
    while (statement.step()) {
      rows.emplace_back();
      for (std::size_t at = 0; at < statement.columns().size(); ++at) {
        rows.back().push_back(toText(statement.value(at)));
      }
    }
    return rows;
  }

  TableFacts embeddedTable(const std::string& table) {
    const std::string definition =
        embedded("select sql from sqlite_schema where name = '" + table + "'")[0][0];
    const bool identity = definition.find("autoincrement") != std::string::npos;
    TableFacts facts;
    for (const auto& row : embedded("pragma table_info(" + table + ")")) {
      const bool isKey = row[5] != "0";
      const std::string type = identity && isKey ? "identity" : lowerCase(row[2]);
      facts.emplace_back(row[1], type, row[3] == "1" || isKey, std::stoi(row[5]));
    }
    return facts;
  }

  std::shared_ptr<Engine> engine_ = Engine::open(":memory:", Engine::Mode::Memory);
};

TEST_F(BothEngines, HaveTheSameTablesColumnsAndKeys) {
  std::size_t tables = 0;
  for (const std::string& batch : script("1-tables.sql")) {
    if (batch.find("create table dbo.") == std::string::npos) continue;
    ++tables;
    const std::string name = bracketedNames(batch.substr(batch.find("create table dbo.")))[0];
    const TableFacts server = serverTable(batch);
    const TableFacts embedded = embeddedTable(name);
    EXPECT_EQ(server, embedded) << name;
    EXPECT_THAT(batch, HasSubstr("if object_id(N'dbo.[" + name + "]') is null\ncreate"));
  }
  EXPECT_EQ(tables, siteSchema().tables().size());
  EXPECT_EQ(std::to_string(tables),
            embedded("select count(*) from sqlite_schema where type = 'table' "
                     "and name not like 'sqlite%'")[0][0]);
}

TEST_F(BothEngines, HaveTheSameIndexes) {
  std::set<std::vector<std::string>> server;
  for (const std::string& batch : script("1-tables.sql")) {
    const std::size_t at = batch.find("create index");
    if (at != std::string::npos) server.insert(bracketedNames(batch.substr(at)));
  }
  std::set<std::vector<std::string>> own;
  for (const auto& index : embedded("select name, tbl_name from sqlite_schema where type = 'index' "
                                    "and name like 'IX%'")) {
    std::vector<std::string> facts{index[0], index[1]};
    for (const auto& column : embedded("pragma index_info(" + index[0] + ")")) {
      facts.push_back(column[2]);
    }
    own.insert(facts);
  }
  EXPECT_EQ(server, own);
  EXPECT_GT(server.size(), 25U);
}

// Names of the columns that a body selects, by its own words.
std::vector<std::string> selectList(const std::string& body) {
  std::vector<std::string> names;
  const std::vector<Token> tokens = tokenize(body);
  std::size_t at = 0;
  while (at < tokens.size() && lowerCase(tokens[at].text) != "select") ++at;
  for (++at; at < tokens.size() && lowerCase(tokens[at].text) != "from"; ++at) {
    const bool last = tokens[at + 1].isSymbol(",") || lowerCase(tokens[at + 1].text) == "from";
    if (last) names.push_back(tokens[at].text);
  }
  return names;
}

TEST_F(BothEngines, ProceduresGiveTheSameColumns) {
  for (const Procedure& procedure : siteProcedures()) {
    std::vector<std::string> declared;
    for (const ResultColumn& column : procedure.results) declared.push_back(column.name);
    EXPECT_EQ(selectList(procedure.serverBody), declared) << procedure.name;
    if (declared.empty()) continue;
    EXPECT_EQ(EngineStatement(engine_, procedure.embeddedBody).columns(), declared)
        << procedure.name;
  }
}

TEST_F(BothEngines, ProceduresUseAllTheirParametersAndNoOthers) {
  for (const Procedure& procedure : siteProcedures()) {
    std::set<std::string> declared;
    for (const Parameter& parameter : procedure.parameters) declared.insert(parameter.name);
    for (const std::string& body : {procedure.serverBody, procedure.embeddedBody}) {
      std::set<std::string> used;
      for (const Token& token : tokenize(body)) {
        const bool named = token.kind == Token::Kind::Variable || token.text.starts_with('@');
        if (named) used.insert(token.text);
      }
      EXPECT_EQ(used, declared) << procedure.name;
    }
  }
}

TEST_F(BothEngines, HoldTheSameRowsAfterTheDataScript) {
  for (std::string batch : script("3-data.sql")) {
    const std::size_t start = batch.find("insert into dbo.");
    if (start == std::string::npos) continue;
    batch = batch.substr(start, batch.find(";\n", start) - start);
    batch = std::regex_replace(batch, std::regex("\\bdbo\\."), "");
    engine_->script(std::regex_replace(batch, std::regex("\\bN'"), "'"));
  }
  const auto connection = test::freshDemonstration().connect();
  for (const Table& table : siteSchema().tables()) {
    const std::string order = " order by " + table.key.front();
    std::vector<std::string> names;
    for (const Column& column : table.columns) names.push_back(column.name);
    auto expected = allRows(*connection, "select * from " + table.name + order, names);
    EngineStatement statement(engine_, "select * from " + table.name + order);
    for (const auto& row : expected) {
      ASSERT_TRUE(statement.step()) << table.name;
      for (std::size_t at = 0; at < row.size(); ++at) {
        EXPECT_EQ(toText(statement.value(at)), row[at]) << table.name << "." << names[at];
      }
    }
    EXPECT_FALSE(statement.step()) << table.name;
  }
}

TEST(ProcedureScript, DeclaresParametersInOrderAndTextsWideEnoughToFailInTheTable) {
  EXPECT_THAT(procedureDefinition(findProcedure("pav_AddDeviceTrigger")),
              HasSubstr("create procedure dbo.[pav_AddDeviceTrigger]\n"
                        "  @Address nvarchar(max),\n  @EventID int,\n  @ActionID int,\n"
                        "  @DeviceClass int\nas\n"));
  EXPECT_THAT(procedureDefinition(findProcedure("DVR_AddAction")),
              HasSubstr("  @DVRActionID int output,\n  @ID_DVR_Config int,\n  @CameraIndex int,\n"
                        "  @RecordRate float,\n"));
  EXPECT_THAT(procedureDefinition(findProcedure("TA_FetchSummary")),
              HasSubstr("create procedure dbo.[TA_FetchSummary]\nas\n"));
}

TEST(ProcedureScript, MakesEveryProcedureOnce) {
  const Batches batches = script("2-procedures.sql");
  for (const Procedure& procedure : siteProcedures()) {
    const std::string start = "if object_id(N'dbo.[" + procedure.name + "]') is null\nexec (N'";
    EXPECT_EQ(std::count_if(batches.begin(), batches.end(),
                            [&](const std::string& batch) { return batch.starts_with(start); }),
              1)
        << procedure.name;
  }
}

TEST(DataScript, GivesIdentitiesOnlyWhereATableNumbersItsRows) {
  for (const std::string& batch : script("3-data.sql")) {
    if (batch.find("insert into dbo.") == std::string::npos) continue;
    const std::string table = bracketedNames(batch.substr(batch.find("insert into dbo.")))[0];
    const std::string setting = "set identity_insert dbo.[" + table + "] ";
    const bool identity = siteSchema().table(table)->hasIdentity();
    EXPECT_EQ(batch.find(setting + "on;") != std::string::npos, identity) << table;
    EXPECT_EQ(batch.find(setting + "off;") != std::string::npos, identity) << table;
  }
}

TEST(DataScript, AGeneratedSiteComesInInsertsThatAServerTakes) {
  std::size_t doors = 0;
  for (const std::string& batch : script("3-data.sql", largeSite({50, 2000, 10, 10}))) {
    const auto rows = std::count(batch.begin(), batch.end(), '\n');
    EXPECT_LT(rows, 1000);
    if (batch.find("insert into dbo.[Doors]") != std::string::npos) {
      for (const std::string& line : linesOf(batch))
        if (line.starts_with("(")) ++doors;
    }
  }
  EXPECT_EQ(doors, 500U);
}

TEST(ServerLiteral, KeepsEveryKindOfValue) {
  const SqlType text{SqlType::Kind::Text, 50};
  const SqlType number{SqlType::Kind::Int};
  EXPECT_EQ(serverLiteral(text, std::string("O'Brien")), "N'O''Brien'");
  EXPECT_EQ(serverLiteral(text, std::string("a\xC3\xA4z")), "N'a' + nchar(228) + N'z'");
  EXPECT_EQ(serverLiteral(text, std::string("\xE6\x89\x89")), "N'' + nchar(25161) + N''");
  EXPECT_EQ(serverLiteral(text, std::string("\xF0\x9F\x9A\xAA")),
            "N'' + nchar(55357) + nchar(57002) + N''");
  EXPECT_EQ(serverLiteral(text, Null{}), "null");
  EXPECT_EQ(serverLiteral(number, std::int64_t{-5}), "-5");
  EXPECT_EQ(serverLiteral({SqlType::Kind::Bit}, true), "1");
  EXPECT_EQ(serverLiteral({SqlType::Kind::Float}, 0.8), "0.8e0");
  EXPECT_EQ(bracketed("a]b"), "[a]]b]");
}

TEST(RightsScript, GrantsExactlyWhatTheComponentSends) {
  const ComponentRights rights = componentRights();
  EXPECT_THAT(rights.remove, ElementsAre("CCTV_TriggerAction", "DVR_TriggerActions"));
  EXPECT_EQ(rights.execute.size(), siteProcedures().size());
  for (const char* table : {"AlarmEvents", "ApplicatrionAddIns", "Zorn_Modules", "CSR_Points",
                            "IntegratedDeviceTriggers", "DVR_TriggerActions", "RetNormalMatrix"}) {
    EXPECT_THAT(rights.read, Contains(table));
  }
  for (const char* table : {"AuditLog", "TA_EventTypes", "ServerPorts", "Kumbos", "CCTV_Presets",
                            "WOL_CommandSets", "WOL_CommandSetRights"}) {
    EXPECT_THAT(rights.read, Not(Contains(table)));
  }
  const Batches batches = script("4-rights.sql");
  EXPECT_EQ(std::count_if(batches.begin(), batches.end(),
                          [](const auto& batch) { return batch.starts_with("grant "); }),
            rights.read.size() + rights.remove.size() + rights.execute.size());
  EXPECT_THAT(batches, Contains("grant delete on dbo.[CCTV_TriggerAction] to [PelorinComponent]"));
}

TEST(AdministratorsPage, NamesEveryTable) {
  std::ifstream file(PELORIN_DATABASE_PAGE, std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (const Table& table : siteSchema().tables()) {
    EXPECT_THAT(page, HasSubstr("`" + table.name + "`"));
  }
  EXPECT_THAT(page, HasSubstr(componentRole));
}

// The columns of the tables that a select reads from, and the names it gives.
std::set<std::string, std::less<>> columnsInSight(const std::string& sql) {
  std::set<std::string, std::less<>> names;
  const std::vector<Token> tokens = tokenize(sql);
  for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
    if (const Table* table = siteSchema().table(tokens[at].text)) {
      for (const Column& column : table->columns) names.insert(lowerCase(column.name));
    }
    if (lowerCase(tokens[at].text) == "as") names.insert(lowerCase(tokens[at + 1].text));
  }
  return names;
}

TEST(StatementTable, ReadsOnlyColumnsThatTheSourceHas) {
  for (const SiteStatement& statement : siteStatements()) {
    const Batch batch = readBatch(statement.text);
    std::set<std::string, std::less<>> known = columnsInSight(statement.text);
    if (const auto* call = std::get_if<CallText>(&batch)) {
      for (const ResultColumn& column : findProcedure(call->procedure).results) {
        known.insert(lowerCase(column.name));
      }
    }
    for (const std::string& column : statement.columns) {
      if (column.front() == '#') continue;
      EXPECT_THAT(known, Contains(lowerCase(column))) << statement.name;
    }
  }
}

}  // namespace
}  // namespace pelorin::site
