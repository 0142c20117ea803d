// The check of a server: what it sends, in what order, and that nothing can stay behind.
#include <gmock/gmock.h>

#include <algorithm>
#include <regex>

#include "site/procedure.h"
#include "site/schema.h"
#include "site/sql_tokens.h"
#include "site/statement_call.h"
#include "tests/site/script_batches.h"

namespace pelorin::site {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

// The text between the quotes of "exec (N'...')", as the server runs it; empty when there is none.
std::string innerText(const std::string& batch) {
  std::string text;
  const std::size_t start = batch.find("exec (N'");
  for (std::size_t at = start + 8; start != std::string::npos && at < batch.size(); ++at) {
    if (batch[at] == '\'' && batch[++at] != '\'') break;
    text.push_back(batch[at]);
  }
  return text;
}

class CheckScript : public testing::Test {
 protected:
  std::string stepOf(const std::string& statement) const {
    const auto found = std::find_if(batches_.begin(), batches_.end(), [&](const auto& batch) {
      return batch.starts_with("print N'" + statement + "'\n");
    });
    return found == batches_.end() ? "" : *found;
  }
  std::size_t count(const std::string& start) const {
    return static_cast<std::size_t>(
        std::count_if(batches_.begin(), batches_.end(),
                      [&](const std::string& batch) { return batch.starts_with(start); }));
  }

  Batches batches_ = script("5-check.sql");
};

TEST_F(CheckScript, SendsEveryStatementWordForWordAsABatchOfItsOwn) {
  for (const SiteStatement& statement : siteStatements()) {
    EXPECT_EQ(innerText(stepOf(statement.name)), serverBatch(statement));
  }
}

TEST_F(CheckScript, SendsACommandAsACallThatTakesItsOutputBack) {
  EXPECT_EQ(innerText(stepOf("AddDVRAction")),
            "declare @DVRActionID int exec DVR_AddAction @DVRActionID output, 1, 1, 0.8e0, 15, 1, "
            "0, 0, 0");
}

TEST_F(CheckScript, AWritingStatementIsBegunAndUndoneInOneBatchAndOnlyWhenNothingFailedBefore) {
  EXPECT_THAT(
      stepOf("DeleteTriggerAction.Trigger"),
      testing::MatchesRegex(
          "print N'DeleteTriggerAction.Trigger'\n"
          "if @@trancount = 0 and \\(select count\\(\\*\\) from \\[#PelorinScript\\] where Mark = "
          "N'passed'\\) = [0-9]+\n"
          "begin\n"
          "begin try\n"
          "begin transaction\n"
          "exec \\(N'exec TA_DeleteTrigger 1'\\)\n"
          "if @@trancount = 0 raiserror\\(N'The statement ended its transaction.', 16, 1\\)\n"
          "rollback transaction\n"
          "insert into \\[#PelorinScript\\] \\(Mark\\) values \\(N'passed'\\)\n"
          "end try\n"
          "begin catch\n"
          "declare @message nvarchar\\(2048\\)\n"
          "set @message = N'  Error ' \\+ cast\\(error_number\\(\\) as nvarchar\\(11\\)\\) \\+ "
          "N': ' \\+ error_message\\(\\)\n"
          "if @@trancount > 0 rollback transaction\n"
          "else insert into \\[#PelorinScript\\] \\(Mark\\) values \\(N'ended'\\)\n"
          "print @message\n"
          "end catch\n"
          "end\n"
          "else\n"
          "begin\n"
          "print N'  Not sent: something failed before.'\n"
          "insert into \\[#PelorinScript\\] \\(Mark\\) values \\(N'skipped'\\)\n"
          "end"));
}

// What a step expects to have passed is all that stands before it.
TEST_F(CheckScript, EveryWritingStatementWaitsForAllStepsBeforeIt) {
  static const std::regex expected("N'passed'\\) = ([0-9]+)\nbegin\n");
  std::size_t steps = 0;
  std::size_t writers = 0;
  for (const std::string& batch : batches_) {
    std::smatch match;
    if (std::regex_search(batch, match, expected)) {
      ++writers;
      EXPECT_EQ(match[1], std::to_string(steps)) << batch;
    }
    if (batch.find("values (N'passed')") != std::string::npos ||
        batch.find("values (N''passed'')") != std::string::npos) {
      ++steps;
    }
  }
  const auto writes = static_cast<std::size_t>(
      std::count_if(siteStatements().begin(), siteStatements().end(),
                    [](const SiteStatement& statement) { return statement.writes; }));
  EXPECT_EQ(writers, writes);
  EXPECT_THAT(batches_.back(), HasSubstr("select @errors = " + std::to_string(steps) + " - "));
}

TEST_F(CheckScript, OutsideItsStepsNothingTouchesTheSitesTables) {
  for (const std::string& batch : batches_) {
    const bool sends = batch.find("begin transaction\nexec (N'") != std::string::npos;
    if (sends) continue;
    for (const Table& table : siteSchema().tables()) {
      EXPECT_THAT(batch, Not(HasSubstr("dbo.[" + table.name + "]")));
      EXPECT_THAT(batch, Not(HasSubstr("into " + table.name)));
    }
    EXPECT_THAT(batch, Not(HasSubstr("commit")));
  }
}

TEST_F(CheckScript, EveryTransactionIsBegunAndUndoneInItsOwnBatch) {
  std::size_t transactions = 0;
  for (const std::string& batch : batches_) {
    const std::size_t begin = batch.find("\nbegin transaction\n");
    const std::size_t undo = batch.find("\nrollback transaction\n");
    EXPECT_EQ(begin == std::string::npos, undo == std::string::npos) << batch;
    if (begin == std::string::npos) continue;
    ++transactions;
    EXPECT_LT(begin, undo);
    EXPECT_LT(batch.find("if @@trancount = 0"), begin);
    EXPECT_LT(batch.find("\nbegin try\n"), begin);
    EXPECT_LT(undo, batch.find("\nbegin catch\n"));
  }
  EXPECT_EQ(transactions, siteStatements().size());
}

TEST_F(CheckScript, TheLastLineCountsTheErrorsAndIsAnErrorWhenThereWasOne) {
  EXPECT_THAT(batches_.back(), HasSubstr("if @errors + @skipped = 0 print N'5-check.sql' + "
                                         "N' is done: no errors; nothing was kept.'\n"
                                         "else raiserror(N'5-check.sql: %d errors, %d statements "
                                         "not sent; %s.', 16, 1, @errors, @skipped, @kept)"));
  EXPECT_THAT(batches_.back(), HasSubstr("if exists (select 1 from [#PelorinScript] where Mark = "
                                         "N'ended') set @kept = N'a statement ended"));
}

TEST_F(CheckScript, ComparesColumnsParametersAndResultsOfProcedures) {
  std::size_t columns = 0;
  for (const Table& table : siteSchema().tables()) columns += table.columns.size();
  EXPECT_EQ(count("if exists (select 1 from information_schema.columns"), columns);
  std::size_t parameters = 0;
  std::size_t results = 0;
  for (const Procedure& procedure : siteProcedures()) {
    parameters += procedure.parameters.size();
    results += procedure.results.size();
  }
  EXPECT_EQ(count("if exists (select 1 from information_schema.parameters"), parameters);
  EXPECT_EQ(count("begin try\nexec (N'if exists (select 1 from sys.dm_exec_describe_first"),
            results);
}

TEST_F(CheckScript, AResultColumnIsComparedByNameAndTypeAndPositionWhereItIsReadSo) {
  Batches inner;
  for (const std::string& batch : batches_) inner.push_back(innerText(batch));
  const std::string ports =
      "if exists (select 1 from sys.dm_exec_describe_first_result_set_for_object("
      "object_id(N'dbo.[sp_FetchServerPorts]'), 0) where name = ";
  EXPECT_THAT(inner,
              Contains(testing::StartsWith(
                  ports + "N'PortID' and system_type_name = N'int' and column_ordinal = 1)")));
  EXPECT_THAT(
      inner,
      Contains(testing::StartsWith(
          ports + "N'PortName' and system_type_name like N'nvarchar(%' and column_ordinal = 2)")));
  EXPECT_THAT(inner, Contains(testing::StartsWith(
                         ports + "N'PortType' and system_type_name = N'smallint') insert into")));
}

TEST_F(CheckScript, EndsNoTransactionButItsOwn) {
  for (const char* name : {"LoadFilterList", "DeleteTriggerAction.Trigger", "AddDVRAction"}) {
    EXPECT_THAT(stepOf(name), HasSubstr("\nif @@trancount = 0")) << name;
  }
  EXPECT_THAT(batches_, Contains("set implicit_transactions off"));
  EXPECT_THAT(batches_, Contains("set xact_abort on"));
}

}  // namespace
}  // namespace pelorin::site
