// Every fault of the journeys, at every place.
#include "tests/fakes/faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace pelorin::test {
namespace {

std::vector<bool> fourActs(Faults faults) {
  std::vector<bool> failed(4);
  std::generate(failed.begin(), failed.end(), [&faults] { return faults.nextFails(); });
  return failed;
}

TEST(FaultsTest, AMomentsFaultFailsOneActAndALastingOneAllFromItOn) {
  Faults faults;
  EXPECT_EQ(fourActs(faults), (std::vector<bool>{false, false, false, false}));
  faults.fail(2, Lasting::Once);
  EXPECT_EQ(fourActs(faults), (std::vector<bool>{false, true, false, false}));
  faults.fail(2, Lasting::FromThenOn);
  EXPECT_EQ(fourActs(faults), (std::vector<bool>{false, true, true, true}));
}

}  // namespace
}  // namespace pelorin::test
