// The one event of an edited trigger and the categories around it.
#include "tests/editor/event_selection_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

TEST_F(EventSelectionTest, EditModeTicksTheEventsCategoryAndSelectsTheEvent) {
  editEvent(101);
  EXPECT_TRUE(filters().selected(doorRow));
  EXPECT_THAT(texts(event()), ElementsAre("00100 - Door forced", "00101 - Door held"));
  EXPECT_EQ(event().selectedData(), 101);
  EXPECT_EQ(events().count(), 0);
}

TEST_F(EventSelectionTest, EditModeFillsControllerFamilyEventsWithABareHyphen) {
  editEvent(80003);
  EXPECT_TRUE(filters().selected(transactionRow));
  EXPECT_THAT(texts(event()), ElementsAre("80001-Card read", "80003-Card refused"));
  EXPECT_EQ(event().selectedData(), 80003);
}

TEST_F(EventSelectionTest, EditModeOffersTheIntegratedAlarmEventsToo) {
  editEvent(10001);
  EXPECT_THAT(texts(event()),
              ElementsAre("05001 - Input in alarm", "05002 - Tamper", "10001 - Motion"));
  EXPECT_EQ(event().selectedData(), 10001);
}

TEST_F(EventSelectionTest, EditModeKeepsTheEventWhenAnotherCategoryIsTicked) {
  editEvent(101);
  tickFilter(alarmRow);
  EXPECT_EQ(event().listCount(), 5);
  EXPECT_EQ(event().selectedData(), 101);
  tickFilter(alarmRow);
  EXPECT_EQ(event().listCount(), 2);
  EXPECT_EQ(event().selectedData(), 101);
}

TEST_F(EventSelectionTest, EditModeLosesTheEventWithItsCategory) {
  editEvent(101);
  tickFilter(doorRow);
  EXPECT_EQ(event().listCount(), 0);
  EXPECT_EQ(event().listIndex(), -1);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EventSelectionTest, EditModeWithoutTheCategorysRowTicksNothingAndShowsTheLocation) {
  services->newerHardware = false;
  editEvent(80003);
  for (int row = 0; row < filters().listCount(); ++row) EXPECT_FALSE(filters().selected(row));
  EXPECT_EQ(textBox("txtLocation").text(), "1.2.3");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EventSelectionTest, TheCategorysRowIsFoundByItsNumberNotItsPosition) {
  database->answer("select * from TA_EventFilters order by FilterIndex",
                   {{"FilterIndex", "FilterType"}, {{2, "System"}, {1, "Door"}}});
  editEvent(101);
  EXPECT_FALSE(filters().selected(0));
  EXPECT_TRUE(filters().selected(1));
}

}  // namespace
}  // namespace pelorin::test
