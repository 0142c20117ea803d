// Which events a ticked category lists, and in what order.
#include "editor/event_selection.h"

#include "tests/editor/event_selection_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

TEST_F(EventSelectionTest, FiltersAreListedWithTheirCategory) {
  openEditor();
  ASSERT_EQ(filters().listCount(), 5);
  EXPECT_EQ(filters().row(1).text, "Door Events");
  EXPECT_EQ(filters().row(3).itemData, 8);
}

TEST_F(EventSelectionTest, WithoutTheNewerHardwareItsFiltersAreMissing) {
  services->newerHardware = false;
  openEditor();
  EXPECT_EQ(filters().listCount(), 3);
}

TEST_F(EventSelectionTest, TickingListsTheCategorysEvents) {
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101"));
  EXPECT_EQ(events().item(1).text, "Door");
  EXPECT_EQ(events().item(1).subItems[1], "Door forced");
  EXPECT_EQ(events().item(1).tag, "");
  EXPECT_EQ(event().listCount(), 0);
}

TEST_F(EventSelectionTest, PlaceholdersAreNeverOfferedWhateverTheirCase) {
  database->answer(doorQuery, {{"EventId", "Description", "DefaultDescription"},
                               {{100, "Named", "UNDEFINED"},
                                {101, Null(), "undefined event"},
                                {102, Null(), "Undefine"},
                                {103, Null(), Null()},
                                {104, Null(), " Undefined"}}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00102", "00103", "00104"));
}

TEST_F(EventSelectionTest, LowerNumbersGoInFrontAndHigherOnesBehind) {
  openEditor();
  tickFilter(alarmRow);
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"));
  tickFilter(doorRow);
  tickFilter(alarmRow);
  tickFilter(doorRow);
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"));
}

TEST_F(EventSelectionTest, TheSameNumberGoesBeforeTheListedRow) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Door", 1, "DoorEvents", 100, 199}, {"System", 2, "DoorEvents", 100, 199}}});
  openEditor();
  tickFilter(doorRow);
  tickFilter(systemRow);
  ASSERT_EQ(events().count(), 4);
  EXPECT_EQ(events().item(1).text, "System");
  EXPECT_EQ(events().item(2).text, "Door");
}

TEST_F(EventSelectionTest, TheIntegratedAlarmEventsComeFromTheirProcedureAndAreNotListed) {
  openEditor();
  journal.clear();
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("05001", "05002"));
  EXPECT_THAT(database->statements(),
              ElementsAre("select EventId, Description, DefaultDescription from AlarmEvents where "
                          "EventID >= 5000 and EventID <= 5999 order by EventID",
                          "exec pav_FetchInstalledIntegratedEvents"));
}

TEST_F(EventSelectionTest, IntegratedEventsOfAnotherTypeAreListed) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Door", 1, "INTEGRATEDEVENTS", 10000, 10999}}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("10001"));
}

TEST_F(EventSelectionTest, AnEmptyCategorySaysSoAndTheNextEntryIsStillListed) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"System", 1, "SystemEvents", 1, 99}, {"Door", 1, "DoorEvents", 100, 199}}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre("There are no events in this category"));
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101"));
}

TEST_F(EventSelectionTest, ElementsWithoutATableAreSkipped) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Door", 1, "", 1, 99}, {"Door", 1, "DoorEvents", 100, 199}}});
  openEditor();
  journal.clear();
  tickFilter(doorRow);
  EXPECT_THAT(database->statements(), ElementsAre(doorQuery));
}

TEST_F(EventSelectionTest, AnotherCategoryDoesNotListTheFirstAgain) {
  openEditor();
  tickFilter(doorRow);
  journal.clear();
  tickFilter(alarmRow);
  EXPECT_EQ(journal.of(std::string("sql: ") + doorQuery).size(), 0U);
  EXPECT_EQ(events().count(), 4);
}

TEST_F(EventSelectionTest, ControllerFamilyRowsAreAppendedFromTheCache) {
  openEditor();
  tickFilter(transactionRow);
  journal.clear();
  tickFilter(doorRow);
  EXPECT_THAT(database->statements(), ElementsAre(doorQuery));
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "80001", "80003"));
  tickFilter(miscellaneousRow);
  EXPECT_EQ(events().item(5).text, "ZornMiscellaneoud");
}

TEST_F(EventSelectionTest, NewModeListsNothingOfTheControllerFamilyFromTheDatabase) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Zorn", 8, "Zorn_EventDefinitions", 80000, 89999}}});
  openEditor();
  journal.clear();
  tickFilter(transactionRow);
  EXPECT_THAT(database->statements(), IsEmpty());
  EXPECT_EQ(events().count(), 2);
}

TEST_F(EventSelectionTest, DefinitionsOfNoCategoryCountAsCategoryZero) {
  database->answer("select * from Zorn_EventDefinitions order by EventID",
                   {{"EventId", "ZornEventType", "Description", "DefaultDescription"},
                    {{80009, 23, Null(), "Odd"}}});
  openEditor();
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("05001", "05002", "80009"));
  tickFilter(alarmRow);
  EXPECT_EQ(events().count(), 0);
}

TEST_F(EventSelectionTest, CustomisedTextsAreShownOnlyWhereTheHostWantsThem) {
  services->enableCustomize = true;
  openEditor();
  tickFilter(alarmRow);
  EXPECT_EQ(events().item(1).subItems[1], "Input in alarm");
  EXPECT_EQ(events().item(2).subItems[1], "Tampering");
  tickFilter(alarmRow);
  services->enableCustomize = false;
  tickFilter(alarmRow);
  EXPECT_EQ(events().item(2).subItems[1], "Tamper");
}

TEST_F(EventSelectionTest, SelectButtonsFollowTheNumberOfRows) {
  openEditor();
  const auto enabled = [this] {
    EXPECT_EQ(button("cmdSelect(0)").enabled(), button("cmdSelect(1)").enabled());
    return button("cmdSelect(0)").enabled();
  };
  EXPECT_FALSE(enabled());
  tickFilter(transactionRow);
  EXPECT_TRUE(enabled());
  tickFilter(transactionRow);
  EXPECT_FALSE(enabled());
  tickFilter(doorRow);
  EXPECT_TRUE(enabled());
  tickFilter(doorRow);
  EXPECT_FALSE(enabled());
  tickFilter(systemRow);
  EXPECT_FALSE(enabled());
}

TEST_F(EventSelectionTest, SelectAllAndDeselectAllSetEveryCheckMark) {
  openEditor();
  tickFilter(doorRow);
  tickFilter(transactionRow);
  button("cmdSelect(0)").userClick();
  for (int i = 1; i <= 4; ++i) EXPECT_TRUE(events().item(i).checked) << i;
  button("cmdSelect(1)").userClick();
  for (int i = 1; i <= 4; ++i) EXPECT_FALSE(events().item(i).checked) << i;
}

TEST_F(EventSelectionTest, AnErrorWhileLoadingKeepsTheRowsBeforeIt) {
  database->failFetch(doorQuery, 1);
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100"));
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, AllOf(StartsWith("Error: LoadEventsByFilterType(): : Line: "),
                                          HasSubstr(" :fetch failed")));
  EXPECT_TRUE(button("cmdSelect(0)").enabled());
}

TEST_F(EventSelectionTest, AnEventNumberTooLargeEndsTheLoadingThere) {
  database->answer(doorQuery, {{"EventId", "Description", "DefaultDescription"},
                               {{100, Null(), "One"}, {5000000000, Null(), "Two"}}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100"));
  EXPECT_EQ(screen.boxes.size(), 1U);
}

TEST_F(EventSelectionTest, TheCatalogueIsLoadedWhenItNeverWas) {
  openEditor();
  EXPECT_EQ(journal.of("sql: exec TA_FetchAllEventTypeInfo").size(), 1U);
}

TEST_F(EventSelectionTest, ALoadedCatalogueIsNotLoadedAgain) {
  catalogue.InitEventTypeInfoArray();
  journal.clear();
  openEditor();
  EXPECT_EQ(journal.of("sql: exec TA_FetchAllEventTypeInfo").size(), 0U);
}

TEST_F(EventSelectionTest, ClosingClearsTheLoadedMarksForTheNextEditor) {
  openEditor();
  tickFilter(doorRow);
  editor->unload();
  openEditor();
  tickFilter(doorRow);
  EXPECT_EQ(events().count(), 2);
}

TEST_F(EventSelectionTest, ACatalogueFilledAnewWhileABoxIsOpenIsLookedUpAgain) {
  openEditor();
  screen.duringBox = [this](const BoxRequest&) {
    database->answer("exec TA_FetchAllEventTypeInfo",
                     {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"}, {}});
    catalogue.InitEventTypeInfoArray();
  };
  tickFilter(systemRow);
  EXPECT_EQ(screen.boxes.size(), 1U);
}

}  // namespace
}  // namespace pelorin::test
