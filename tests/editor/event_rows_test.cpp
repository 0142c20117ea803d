// Events in the order of their numbers.
#include "editor/event_rows.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

class EventRowsTest : public ::testing::Test {
 protected:
  ListView events{
      noParent, "lvwEvents", {}, {{"Type", 1}, {"Event No.", 1}, {"Description", 1}}, true};

  static ListItem row(int number, const std::string& text) {
    ListItem item;
    item.text = text;
    item.subItems = {eventNumberText(number), text};
    return item;
  }
  void list(std::initializer_list<int> eventIds) {
    for (const int id : eventIds) events.add(0, row(id, "old"));
  }
  void merge(std::initializer_list<int> eventIds) {
    EventRowMerge merge(events);
    for (const int id : eventIds) merge.add(id, row(id, "new"));
    merge.finish();
  }
};

TEST_F(EventRowsTest, ThePositionIsTheFirstRowThatIsNotBelow) {
  list({10, 20, 30});
  EXPECT_EQ(FindEventInsertPosition(events, 5, 1), 1);
  EXPECT_EQ(FindEventInsertPosition(events, 20, 1), 2);
  EXPECT_EQ(FindEventInsertPosition(events, 25, 1), 3);
  EXPECT_EQ(FindEventInsertPosition(events, 31, 1), 4);
}

TEST_F(EventRowsTest, ThePositionIsSearchedFromTheStartOn) {
  list({10, 20, 30});
  EXPECT_EQ(FindEventInsertPosition(events, 5, 3), 3);
  EXPECT_EQ(FindEventInsertPosition(events, 5, 4), 4);
}

TEST_F(EventRowsTest, HigherNumbersAreAppendedInOrder) {
  list({10, 20});
  merge({30, 40});
  EXPECT_THAT(numbers(events), ElementsAre("00010", "00020", "00030", "00040"));
}

TEST_F(EventRowsTest, LowerNumbersGoInFrontInOrder) {
  list({30, 40});
  merge({10, 20});
  EXPECT_THAT(numbers(events), ElementsAre("00010", "00020", "00030", "00040"));
}

TEST_F(EventRowsTest, NumbersInBetweenAreMerged) {
  list({10, 30, 50});
  merge({5, 20, 25, 40, 60});
  EXPECT_THAT(numbers(events),
              ElementsAre("00005", "00010", "00020", "00025", "00030", "00040", "00050", "00060"));
}

TEST_F(EventRowsTest, ATieGoesBeforeTheListedRow) {
  list({10, 20});
  merge({20});
  EXPECT_EQ(events.item(2).text, "new");
  EXPECT_EQ(events.item(3).text, "old");
}

TEST_F(EventRowsTest, ARowOutOfOrderStaysBehindTheOneBeforeIt) {
  list({10, 20});
  merge({15, 5});
  EXPECT_THAT(numbers(events), ElementsAre("00010", "00015", "00005", "00020"));
}

TEST_F(EventRowsTest, TheSelectionStaysOnItsRow) {
  list({10, 30});
  events.setSelectedIndex(2);
  merge({5, 20, 40});
  EXPECT_EQ(events.item(events.selectedIndex()).subItems.front(), "00030");
}

TEST_F(EventRowsTest, InsertingNothingTellsTheViewNothing) {
  struct Counting final : ControlView {
    int changes = 0;
    void modelChanged(const Change&) override { ++changes; }
  } view;
  events.setView(&view);
  merge({});
  EXPECT_EQ(view.changes, 0);
  merge({1, 2, 3});
  EXPECT_EQ(view.changes, 1);
  events.setView(nullptr);
}

TEST_F(EventRowsTest, InsertionsOutOfOrderOrRangeAreError35600AndChangeNothing) {
  list({10, 20});
  const auto insertBefore = [this](int first, int second) {
    std::vector<ListInsertion> insertions;
    insertions.push_back({first, row(1, "new")});
    insertions.push_back({second, row(2, "new")});
    events.insert(std::move(insertions));
  };
  EXPECT_THROW(insertBefore(2, 1), RunTimeError);
  EXPECT_THROW(insertBefore(0, 1), RunTimeError);
  EXPECT_THROW(insertBefore(1, 4), RunTimeError);
  EXPECT_THAT(numbers(events), ElementsAre("00010", "00020"));
}

// The rule row by row, as the list would be filled without merging.
TEST_F(EventRowsTest, MergingIsTheSameAsInsertingRowByRow) {
  ListView plain{noParent, "plain", {}, {{"Type", 1}, {"Event No.", 1}}, true};
  unsigned state = 12345;
  const auto next = [&state](unsigned below) {
    state = state * 1664525U + 1013904223U;
    return static_cast<int>((state >> 8) % below);
  };
  for (int round = 0; round < 50; ++round) {
    std::vector<int> ids;
    for (int id = next(50); id < 400; id += 1 + next(40)) ids.push_back(id);
    EventRowMerge merge(events);
    int counter = 1;
    for (const int id : ids) {
      const std::string mark = std::to_string(round);
      merge.add(id, row(id, mark));
      if (counter <= plain.count() && id > parseNumber(plain.item(counter).subItems.front())) {
        counter = FindEventInsertPosition(plain, id, counter);
      }
      plain.add(counter, row(id, mark));
      ++counter;
    }
    merge.finish();
  }
  ASSERT_EQ(events.count(), plain.count());
  for (int i = 1; i <= plain.count(); ++i) {
    EXPECT_EQ(events.item(i).subItems, plain.item(i).subItems) << i;
  }
}

}  // namespace
}  // namespace pelorin::test
