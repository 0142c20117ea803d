// The typical request, through the real windows.
#include "host/play/outcome.h"
#include "host/play/typical_request.h"
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using TypicalJourney = Journey;

TEST_F(TypicalJourney, TwoDoorsAndTwoEventsMakeFourTriggersByTheContractsStatements) {
  host::Stage stage(host.ui(), host.session(), host.window(), testing::TempDir(), "-journey",
                    [](const std::string&) {});
  const host::Standing before = host::standing(stage);
  const host::SummaryRows rows = host::playTypicalRequest(stage);
  EXPECT_THAT(host::tellOutcome(stage, before, rows), testing::IsEmpty());
  EXPECT_THAT(statements(),
              testing::IsSupersetOf({"exec CCTV_Insert_TA 1, 2, 3, 0, 1, '001.01.001.D02', 1, '1', "
                                     "'001.01.001.D02 - Revolving door', 0, False",
                                     "exec CCTV_Insert_TA 1, 2, 3, 0, 2, '001.01.001.D02', 1, '2', "
                                     "'001.01.001.D02 - Revolving door', 0, False",
                                     "exec CCTV_Insert_TA 1, 2, 3, 0, 1, '001.01.001.D03', 1, '1', "
                                     "'001.01.001.D03 - Visitor gate', 0, False",
                                     "exec CCTV_Insert_TA 1, 2, 3, 0, 2, '001.01.001.D03', 1, '2', "
                                     "'001.01.001.D03 - Visitor gate', 0, False"}));
}

}  // namespace
}  // namespace pelorin::test
