// Procedures that only a lack of memory can end: it is error 7 like any other, under their names.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/faults/failing_memory.h"
#include "tests/faults/named_faults.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::EndsWith;

TEST(MemoryReportNames, OfUntickingEventsOfTheNewerControllers) {
  std::set<std::string> names;
  bool failed = true;
  for (int allocation = 1; failed; ++allocation) {
    ASSERT_LT(allocation, 1000);
    NamedFaults session;
    session.openSummary();
    session.add();
    session.tickFilter("Zorn Transaction Events");
    auto& filters = session.inEditor<ListBox>("lstEventFilters");
    int row = 0;
    while (!filters.selected(row)) ++row;
    {
      const FailingMemory memory(allocation);
      filters.userToggle(row);
    }
    failed = FailingMemory::failed();
    EXPECT_EQ(session.screen.boxes.size(), failed ? 1U : 0U);
    EXPECT_THAT(session.screen.boxTexts(), Each(EndsWith(" :Out of memory")));
    names.merge(session.reported());
  }
  EXPECT_THAT(names, Contains("frmTriggerAction.ZornUnDisplayFilteredEvents"));
}

}  // namespace
}  // namespace pelorin::test
