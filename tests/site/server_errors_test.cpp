#include "tests/site/server_errors.h"

#include "site/errors.h"
#include "site/row_data.h"
#include "site/schema.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

class EmbeddedError : public SiteTest, public testing::WithParamInterface<site::ServerError> {};

TEST_P(EmbeddedError, HasTheNumberThatAdoGivesTheServers) {
  try {
    connection_->execute(GetParam().statement);
    FAIL() << "it ran";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), GetParam().ado) << error.description();
  }
}

INSTANTIATE_TEST_SUITE_P(Server, EmbeddedError, testing::ValuesIn(site::serverErrors),
                         [](const auto& error) { return std::string(error.param.name); });

TEST(AdoErrorNumber, FollowsTheStateWhereTheServersNumberSaysNoMore) {
  EXPECT_EQ(site::adoErrorNumber(0, "S0002"), -2147217865);
  EXPECT_EQ(site::adoErrorNumber(245, "22018"), -2147217913);
  EXPECT_EQ(site::adoErrorNumber(8115, "22003"), -2147217833);
  EXPECT_EQ(site::adoErrorNumber(229, "42000"), -2147217911);
  EXPECT_EQ(site::adoErrorNumber(18456, "28000"), -2147217843);
  EXPECT_EQ(site::adoErrorNumber(0, "HYT00"), -2147217871);
  EXPECT_EQ(site::adoErrorNumber(1205, "40001"), -2147467259);
  EXPECT_EQ(site::adoErrorNumber(0, ""), -2147467259);
}

class Keys : public SiteTest {};

TEST_F(Keys, ANullIsRefusedInEveryKeyThatTheEngineDoesNotNumber) {
  for (const site::Table& table : site::siteSchema().tables()) {
    if (table.hasIdentity()) continue;
    const std::int64_t before = count(table.name);
    EXPECT_EQ(failure("insert into " + table.name + " (" + table.key.front() + ") values (null)")
                  .substr(0, 35),
              "Cannot insert the value NULL into c")
        << table.name;
    EXPECT_EQ(count(table.name), before) << table.name;
  }
}

TEST_F(Keys, ANullAsANumberThatTheEngineGivesIsRefusedWhereASiteIsFilled) {
  const auto filling = [](site::RowSink& rows) {
    rows.begin(*site::siteSchema().table("CCTV_TriggerAction"), {"TA_ID", "T_EventID"});
    rows.row({Null{}, std::int64_t{1}});
  };
  try {
    SiteDatabase::inMemory(filling);
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), site::ado_error::constraint);
    EXPECT_EQ(error.description(),
              "Cannot insert the value NULL into column 'TA_ID', table 'CCTV_TriggerAction'; "
              "column does not allow nulls.");
  }
}

}  // namespace
}  // namespace pelorin
