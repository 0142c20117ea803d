// How the scripts keep count of errors, and that the rows come all or none.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

#include "site/schema.h"
#include "test_paths.h"
#include "tests/site/script_batches.h"

namespace pelorin::site {
namespace {

using testing::Contains;
using testing::HasSubstr;

constexpr const char* afterABatch =
    "if @@error <> 0\nbegin\n"
    "if exists (select 1 from [#PelorinScript] where Mark = N'begun') rollback transaction\n"
    "insert into [#PelorinScript] (Mark) values (N'error')\nend";

bool isSetting(const std::string& batch) {
  return batch.starts_with("set ") ||
         batch.starts_with("if object_id(N'tempdb..[#PelorinScript]')");
}

class CountedScript : public testing::TestWithParam<std::string> {};

TEST_P(CountedScript, LooksAfterEachBatchWhetherItFailed) {
  const Batches batches = script(GetParam());
  auto batch = std::find_if_not(batches.begin(), batches.end(), isSetting);
  std::size_t pairs = 0;
  for (; batches.end() - batch > 1; batch += 2, ++pairs) {
    EXPECT_NE(*batch, afterABatch);
    EXPECT_EQ(*(batch + 1), afterABatch) << *batch;
  }
  EXPECT_GT(pairs, 15U);
}

TEST_P(CountedScript, EndsWithAnErrorOrWithTheSentenceThatAllWentWell) {
  EXPECT_EQ(script(GetParam()).back(),
            "if exists (select 1 from [#PelorinScript] where Mark = N'error')\nraiserror(N'" +
                GetParam() + " had errors.', 16, 1)\nelse print N'" + GetParam() +
                "' + N' is done.'");
}

INSTANTIATE_TEST_SUITE_P(Server, CountedScript,
                         testing::Values("1-tables.sql", "2-procedures.sql", "3-data.sql",
                                         "4-rights.sql"),
                         [](const auto& name) { return "script" + name.param.substr(0, 1); });

class DataScriptOrder : public testing::Test {
 protected:
  using Place = Batches::const_iterator;

  Place first(const std::string& part) const {
    return std::find_if(batches_.begin(), batches_.end(), [&](const std::string& batch) {
      return batch.find(part) != std::string::npos;
    });
  }

  Batches batches_ = script("3-data.sql");
};

TEST_F(DataScriptOrder, ChecksEveryTableAndColumnBeforeItBegins) {
  const Place begin = first("\nbegin transaction\n");
  ASSERT_NE(begin, batches_.end());
  for (const Table& table : siteSchema().tables()) {
    for (const Column& column : table.columns) {
      const Place check = first(
          "if not exists (select 1 from information_schema.columns where "
          "table_schema = N'dbo' and table_name = N'" +
          table.name + "' and column_name = N'" + column.name + "'");
      ASSERT_LT(check, begin) << table.name << "." << column.name;
      EXPECT_THAT(*check, HasSubstr("raiserror(N'Column " + table.name + "." + column.name));
    }
  }
}

TEST_F(DataScriptOrder, BeginsOnlyWithoutErrorsWithoutATransactionAndWhereNoTableHasARow) {
  const Place beginning = first("\nbegin transaction\n");
  ASSERT_NE(beginning, batches_.end());
  const std::string& batch = *beginning;
  const std::size_t begin = batch.find("\nbegin transaction\n");
  const std::size_t errors =
      batch.find("if exists (select 1 from [#PelorinScript] where Mark = N'error') print");
  const std::size_t open = batch.find("else if @@trancount > 0 raiserror");
  EXPECT_EQ(errors, 0U);
  EXPECT_LT(errors, open);
  EXPECT_LT(open, begin);
  for (const Table& table : siteSchema().tables()) {
    const std::size_t empty = batch.find("not exists (select 1 from dbo.[" + table.name + "])");
    EXPECT_LT(open, empty) << table.name;
    EXPECT_LT(empty, begin) << table.name;
  }
}

// The mark is a row of the transaction itself: an error that ends the transaction takes it away.
TEST_F(DataScriptOrder, AddsAndKeepsRowsOnlyWhileItsOwnTransactionStands) {
  const Place begin = first("\nbegin transaction\n");
  ASSERT_NE(begin, batches_.end());
  EXPECT_THAT(*begin, HasSubstr("\nbegin transaction\n"
                                "insert into [#PelorinScript] (Mark) values (N'begun')\nend"));
  std::size_t inserts = 0;
  for (const std::string& batch : batches_) {
    if (batch.find("insert into dbo.") == std::string::npos) continue;
    ++inserts;
    EXPECT_TRUE(batch.starts_with(
        "if exists (select 1 from [#PelorinScript] where Mark = N'begun')\nbegin\n"));
    EXPECT_TRUE(batch.ends_with("\nend")) << batch;
  }
  EXPECT_GT(inserts, 30U);
  EXPECT_EQ(std::count_if(
                batches_.begin(), batches_.end(),
                [](const std::string& batch) { return batch.find("commit") != std::string::npos; }),
            1);
  EXPECT_THAT(batches_,
              Contains("if exists (select 1 from [#PelorinScript] where Mark = N'begun')\n"
                       "begin\ndelete from [#PelorinScript]\ncommit transaction\nend"));
}

std::string administratorsPage() {
  std::ifstream file(PELORIN_DATABASE_PAGE, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(AdministratorsLoops, StopAtTheFirstScriptThatDoesNotSayItIsDone) {
  const std::string page = administratorsPage();
  EXPECT_THAT(page, HasSubstr("-b -i \"$f\" || break"));
  EXPECT_THAT(page, HasSubstr("grep -qF \"${f##*/} is done\" \"$f.log\" || break"));
}

}  // namespace
}  // namespace pelorin::site
