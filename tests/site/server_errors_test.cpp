// Errors of the embedded site, with the server's numbers and texts.
#include "database/ado_numbers.h"
#include "site/errors.h"
#include "site/row_data.h"
#include "site/schema.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

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

TEST(Keys, ANullAsANumberThatTheEngineGivesIsRefusedWhereASiteIsFilled) {
  const auto filling = [](site::RowSink& rows) {
    rows.begin(*site::siteSchema().table("CCTV_TriggerAction"), {"TA_ID", "T_EventID"});
    rows.row({Null{}, std::int64_t{1}});
  };
  try {
    SiteDatabase::inMemory(filling);
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ado::error::constraint);
    EXPECT_EQ(error.description(),
              "Cannot insert the value NULL into column 'TA_ID', table 'CCTV_TriggerAction'; "
              "column does not allow nulls.");
  }
}

}  // namespace
}  // namespace pelorin
