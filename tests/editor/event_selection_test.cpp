#include "editor/event_selection.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr int alarmRow = 0;
constexpr int doorRow = 1;
constexpr int systemRow = 2;
constexpr int transactionRow = 3;
constexpr int miscellaneousRow = 4;

const char* const doorQuery =
    "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
    "EventID <= 199 order by EventID";
const char* const question =
    "There are events of this type selected. Would you like to unselect them?";

class EventSelectionTest : public EditorTest {
 protected:
  ListView& events() { return control<ListView>("lvwEvents"); }
  ListBox& filters() { return control<ListBox>("lstEventFilters"); }
  ComboBox& event() { return combo("cmbEvents"); }

  void editEvent(int eventId) {
    answerCctvTrigger(5, {5, "1.2.3", eventId, 11, 1, 1, 1, 31, 0, 0});
    editCctv();
  }
};

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
  TabControl tabs{"SSTab1", {}, {"&Trigger"}};
  EditorState state;
  TriggerLocations locations{module, tabs, 0, *editor, {}};
  EventSelection alone{module, catalogue, state, locations, tabs, 0};
  alone.lstEventFilters.addItem("Access Granted Events");
  alone.lstEventFilters.addItem("Events");
  EXPECT_EQ(alone.GetFilterListPrefix(0), "Access");
  EXPECT_EQ(alone.GetFilterListPrefix(1), "");
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
