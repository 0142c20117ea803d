// Categories of events, over the catalogue of the demonstration site.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {
namespace {

struct CategoryCase {
  const char* name;
  const char* category;
};

void PrintTo(const CategoryCase& value, std::ostream* out) {
  *out << value.category;
}

class CategoryJourney : public ::testing::TestWithParam<CategoryCase>, protected EditorJourney {
 protected:
  void SetUp() override {
    openSummary();
    add();
  }
};

TEST_P(CategoryJourney, IsAskedForBeforeItTakesAChosenEventAway) {
  auto& events = inEditor<ListView>("lvwEvents");
  tickFilter(GetParam().category);
  ASSERT_GT(events.count(), 0);
  const int rows = events.count();
  events.userCheck(1, true);
  screen.boxes.clear();
  screen.answers = {BoxAnswer::No};

  tickFilter(GetParam().category);

  EXPECT_THAT(screen.boxTexts(),
              ::testing::ElementsAre("There are events of this type selected. Would you like to "
                                     "unselect them?"));
  EXPECT_EQ(events.count(), rows);
  EXPECT_TRUE(events.item(1).checked);

  screen.answers = {BoxAnswer::Yes};
  tickFilter(GetParam().category);
  EXPECT_EQ(events.count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Site, CategoryJourney,
                         ::testing::Values(CategoryCase{"alarm", "Alarm Events"},
                                           CategoryCase{"integrated", "Integrated Events"},
                                           CategoryCase{"transaction", "Zorn Transaction Events"},
                                           CategoryCase{"internal", "Zorn Internal Events"},
                                           CategoryCase{"external", "Zorn External Events"},
                                           CategoryCase{"miscellaneous",
                                                        "Zorn Miscellaneous Events"},
                                           CategoryCase{"software", "Zorn Software Events"}),
                         [](const auto& value) { return std::string(value.param.name); });

}  // namespace
}  // namespace pelorin::test
