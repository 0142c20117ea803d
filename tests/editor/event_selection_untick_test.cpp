// What goes with a category that the operator does not want any more.
#include "tests/editor/event_selection_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

const char* const question =
    "There are events of this type selected. Would you like to unselect them?";

TEST_F(EventSelectionTest, UntickingACategoryWithoutCheckedRowsRemovesThemWithoutAsking) {
  openEditor();
  tickFilter(doorRow);
  tickFilter(alarmRow);
  checkEvents({3});
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("05001", "05002"));
  EXPECT_TRUE(events().item(1).checked);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EventSelectionTest, UntickingACategoryWithACheckedRowAsks) {
  openEditor();
  tickFilter(doorRow);
  checkEvents({2});
  tickFilter(doorRow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(question));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Question);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::YesNo);
  EXPECT_EQ(events().count(), 0);
  EXPECT_FALSE(filters().selected(doorRow));
}

TEST_F(EventSelectionTest, AnsweringNoKeepsTheRowsAndTicksTheCategoryAgain) {
  openEditor();
  tickFilter(doorRow);
  checkEvents({2});
  screen.answers = {BoxAnswer::No};
  tickFilter(doorRow);
  EXPECT_EQ(screen.boxes.size(), 1U);
  EXPECT_TRUE(filters().selected(doorRow));
  EXPECT_EQ(events().count(), 2);
  EXPECT_TRUE(events().item(2).checked);
}

TEST_F(EventSelectionTest, AnUntickedCategoryIsReadAnewFromTheDatabase) {
  openEditor();
  tickFilter(doorRow);
  tickFilter(doorRow);
  journal.clear();
  tickFilter(doorRow);
  EXPECT_THAT(database->statements(), ElementsAre(doorQuery));
  EXPECT_EQ(events().count(), 2);
}

TEST_F(EventSelectionTest, RowsBelongToTheCategoryTheyWereLoadedForEvenUnderTheSameName) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Door", 1, "DoorEvents", 100, 199}, {"Door", 2, "SystemEvents", 1, 99}}});
  database->answer(
      "select EventId, Description, DefaultDescription from SystemEvents where EventID >= 1 and "
      "EventID <= 99 order by EventID",
      {{"EventId", "Description", "DefaultDescription"}, {{7, Null(), "Start"}}});
  openEditor();
  tickFilter(doorRow);
  tickFilter(systemRow);
  checkEvents({1});
  tickFilter(doorRow);
  EXPECT_TRUE(screen.boxes.empty());
  EXPECT_THAT(numbers(events()), ElementsAre("00007"));
}

TEST_F(EventSelectionTest, ACategoryWithoutATypeTextMatchesTheFirstWordOfItsFilter) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"", 1, "DoorEvents", 100, 199}}});
  openEditor();
  tickFilter(doorRow);
  ASSERT_EQ(events().count(), 2);
  tickFilter(doorRow);
  EXPECT_EQ(events().count(), 2) << "an empty type text matches nothing";
}

TEST_F(EventSelectionTest, UntickingAControllerFamilyCategoryRemovesItsRowsAlone) {
  openEditor();
  tickFilter(transactionRow);
  tickFilter(miscellaneousRow);
  tickFilter(doorRow);
  tickFilter(transactionRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "80002"));
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EventSelectionTest, ACheckedControllerFamilyRowAsksByTheFirstWordOfItsFilter) {
  openEditor();
  tickFilter(transactionRow);
  checkEvents({1});
  screen.answers = {BoxAnswer::No};
  tickFilter(transactionRow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(question));
  EXPECT_EQ(events().count(), 2);
}

TEST_F(EventSelectionTest, TheMisspeltTypeIsNotFoundByItsFilterSoItGoesWithoutAsking) {
  openEditor();
  tickFilter(miscellaneousRow);
  checkEvents({1});
  tickFilter(miscellaneousRow);
  EXPECT_TRUE(screen.boxes.empty());
  EXPECT_EQ(events().count(), 0);
}

TEST_F(EventSelectionTest, TheFilterPrefixIsTheTextBeforeTheFirstBlank) {
  openEditor();
  TabControl tabs{noParent, "SSTab1", {}, {"&Trigger"}};
  EditorState state;
  TriggerLocations locations{module, tabs.page(0), *editor, {}};
  EventSelection alone{module, catalogue, state, locations, tabs.page(0)};
  alone.lstEventFilters.addItem("Access Granted Events");
  alone.lstEventFilters.addItem("Events");
  EXPECT_EQ(alone.GetFilterListPrefix(0), "Access");
  EXPECT_EQ(alone.GetFilterListPrefix(1), "");
}

}  // namespace
}  // namespace pelorin::test
