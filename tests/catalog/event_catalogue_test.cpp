// The array of event types: how it is filled, and how large it is.
#include "catalog/event_catalogue.h"

#include "tests/catalog/catalogue_fixture.h"
#include "tests/fakes/lookups.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

const std::string filtersQuery = "select * from TA_EventFilters order by FilterIndex";

std::vector<std::vector<Value>> manyTypes(int count) {
  std::vector<std::vector<Value>> rows;
  for (int i = 0; i < count; ++i) {
    rows.push_back(
        eventType("Type" + std::to_string(i), i, "Table" + std::to_string(i), i * 10, i * 10 + 9));
  }
  return rows;
}

using EventTypeArrayTest = CatalogueTest;

TEST_F(EventTypeArrayTest, IsFilledInTheOrderReturned) {
  answerTypes({eventType("Door", 4, "DoorEvents", 1, 99), eventType("Alarm", 2, "Alarms", 5, 7)});
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(database.statements(), ElementsAre("exec TA_FetchAllEventTypeInfo"));
  ASSERT_EQ(catalogue.records().size(), 3U);
  const EventTypeInfo& door = catalogue.records()[0];
  EXPECT_EQ(door.DisplayName, "Door Events");
  EXPECT_EQ(door.FilterType, "Door");
  EXPECT_EQ(door.FilterIndex, 4);
  EXPECT_EQ(door.TableName, "DoorEvents");
  EXPECT_EQ(door.MinEventID, 1);
  EXPECT_EQ(door.MaxEventID, 99);
  EXPECT_FALSE(door.EventsLoaded);
  EXPECT_EQ(catalogue.records()[1].FilterType, "Alarm");
}

TEST_F(EventTypeArrayTest, LastElementStaysEmptyAndIsNotWalked) {
  loadThreeTypes();
  EXPECT_THAT(catalogue.records(), SizeIs(4));
  EXPECT_EQ(catalogue.records()[3].TableName, "");
  EXPECT_EQ(catalogue.records()[3].DisplayName, "");
  EXPECT_THAT(catalogue.types(), SizeIs(3));
}

TEST_F(EventTypeArrayTest, WithoutRowsHasTheEmptyElementAlone) {
  answerTypes({});
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(catalogue.records(), SizeIs(1));
  EXPECT_THAT(catalogue.types(), IsEmpty());
  EXPECT_TRUE(catalogue.loaded());
}

TEST_F(EventTypeArrayTest, RangesAreReadAsNumericText) {
  answerTypes({{"Door", std::int64_t{0}, "DoorEvents", Null{}, Null{}},
               {"Input", std::int64_t{1}, "InputEvents", "", " 42 events"}});
  catalogue.InitEventTypeInfoArray();
  EXPECT_EQ(catalogue.records()[0].MinEventID, 0);
  EXPECT_EQ(catalogue.records()[0].MaxEventID, 0);
  EXPECT_EQ(catalogue.records()[1].MinEventID, 0);
  EXPECT_EQ(catalogue.records()[1].MaxEventID, 42);
}

TEST_F(EventTypeArrayTest, NullTextsAreEmpty) {
  answerTypes({{Null{}, Null{}, Null{}, std::int64_t{1}, std::int64_t{2}}});
  catalogue.InitEventTypeInfoArray();
  EXPECT_EQ(catalogue.records()[0].DisplayName, " Events");
  EXPECT_EQ(catalogue.records()[0].FilterIndex, 0);
  EXPECT_EQ(catalogue.records()[0].TableName, "");
}

TEST_F(EventTypeArrayTest, LoadingAgainStartsAnew) {
  loadThreeTypes();
  catalogue.records()[0].EventsLoaded = true;
  answerTypes({eventType("Door", 0, "DoorEvents", 0, 999)});
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(catalogue.records(), SizeIs(2));
  EXPECT_FALSE(catalogue.records()[0].EventsLoaded);
}

// The host handles messages inside the statement and lets the operator open the tool again.
TEST_F(EventTypeArrayTest, FilledAgainInTheMiddleOfAFillingItHoldsTheRowsOfBoth) {
  database.onStatement = [this](const std::string&) {
    database.onStatement = nullptr;
    answerTypes({eventType("Door", 0, "DoorEvents", 0, 999)});
    catalogue.InitEventTypeInfoArray();
    EXPECT_THAT(catalogue.records(), SizeIs(2));
    answerTypes(manyTypes(51));
  };
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), IsEmpty());
  ASSERT_THAT(catalogue.records(), SizeIs(52));
  EXPECT_EQ(catalogue.records()[50].FilterType, "Type50");
}

TEST_F(EventTypeArrayTest, HoldsFiftyOneTypes) {
  answerTypes(manyTypes(51));
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), IsEmpty());
  EXPECT_THAT(catalogue.records(), SizeIs(52));
  EXPECT_EQ(catalogue.GetFilterTypeByFilterIndex(50), "Type50");
}

TEST_F(EventTypeArrayTest, FiftySecondRowIsAReportedErrorAndTheRows0To50Stay) {
  answerTypes(manyTypes(52));
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("Module1.InitEventTypeInfoArray: Line: [1-9][0-9]* "
                                                ":Subscript out of range")));
  ASSERT_THAT(catalogue.records(), SizeIs(51));
  EXPECT_EQ(catalogue.records()[50].FilterType, "Type50");
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(491), 49);
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(EventTypeArrayTest, FailingStatementLeavesFiftyOneEmptyElements) {
  database.fail(typesQuery);
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "Module1.InitEventTypeInfoArray: Line: [1-9][0-9]* :statement failed")));
  EXPECT_THAT(catalogue.records(), SizeIs(51));
  EXPECT_FALSE(catalogue.loaded());
}

TEST_F(EventTypeArrayTest, FailingFetchKeepsTheRowsReadSoFarAtTheirIndexes) {
  answerTypes(manyTypes(5));
  database.failFetch(typesQuery, 3);
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), SizeIs(1));
  ASSERT_THAT(catalogue.records(), SizeIs(51));
  EXPECT_EQ(catalogue.records()[2].FilterType, "Type2");
  EXPECT_EQ(catalogue.records()[3].FilterType, "");
  EXPECT_FALSE(catalogue.loaded());
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(EventTypeArrayTest, RangeBeyondTheWidthIsReportedAndKeepsTheRowsBefore) {
  answerTypes({eventType("Door", 0, "DoorEvents", 0, 999),
               eventType("Far", 1, "FarEvents", 0, 2147483648)});
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(".*InitEventTypeInfoArray.*:Overflow")));
  EXPECT_EQ(catalogue.records()[0].FilterType, "Door");
}

TEST_F(EventTypeArrayTest, OverALostConnectionIsNotReportedAgain) {
  const Act act(surroundings.screen.acts());
  database.lose(typesQuery);
  catalogue.InitEventTypeInfoArray();
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), SizeIs(1));
}

TEST_F(EventTypeArrayTest, WithoutConnectionIsReported) {
  module.setDBConnection(nullptr);
  catalogue.InitEventTypeInfoArray();
  EXPECT_THAT(boxes(), SizeIs(1));
  EXPECT_THAT(catalogue.records(), SizeIs(51));
}

TEST_F(EventTypeArrayTest, IsNotLoadedBeforeTheFirstTime) {
  EXPECT_FALSE(catalogue.loaded());
  EXPECT_THAT(catalogue.types(), IsEmpty());
}

class FilterListTest : public CatalogueTest {
 protected:
  FilterListTest() {
    database.answer(filtersQuery, {{"FilterIndex", "FilterType"},
                                   {{std::int64_t{0}, "Door"},
                                    {std::int64_t{7}, "System"},
                                    {std::int64_t{8}, "Zorn"},
                                    {std::int64_t{12}, "Zorn system"}}});
  }

  ListBox list{noParent, "lstEventFilters", {}};
};

TEST_F(FilterListTest, AsksTheHostThenTheDatabase) {
  catalogue.LoadFilterList(list);
  EXPECT_THAT(journal.lines(),
              ElementsAre("host: ZornIsVn8HardwareSupportEnabled", "sql: " + filtersQuery));
}

TEST_F(FilterListTest, FiltersAboveSevenNeedTheNewerHardware) {
  catalogue.LoadFilterList(list);
  EXPECT_THAT(texts(list), ElementsAre("Door Events", "System Events"));
}

TEST_F(FilterListTest, NewerHardwareOffersAllWithTheirNumbers) {
  services.newerHardware = true;
  EXPECT_TRUE(catalogue.LoadFilterList(list));
  EXPECT_THAT(texts(list),
              ElementsAre("Door Events", "System Events", "Zorn Events", "Zorn system Events"));
  EXPECT_EQ(list.row(1).itemData, 7);
  EXPECT_EQ(list.row(3).itemData, 12);
}

TEST_F(FilterListTest, FailingStatementIsReported) {
  database.fail(filtersQuery);
  EXPECT_FALSE(catalogue.LoadFilterList(list));
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("Module1.LoadFilterList: Line: [1-9][0-9]* :statement failed")));
  EXPECT_EQ(list.listCount(), 0);
}

TEST_F(FilterListTest, FailingHostIsReportedAndAsksNoDatabase) {
  services.failing = {"ZornIsVn8HardwareSupportEnabled"};
  catalogue.LoadFilterList(list);
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("Module1.LoadFilterList: .*")));
  EXPECT_THAT(database.statements(), IsEmpty());
}

TEST_F(FilterListTest, FailingFetchKeepsTheRowsAddedSoFar) {
  database.failFetch(filtersQuery, 1);
  EXPECT_FALSE(catalogue.LoadFilterList(list));
  EXPECT_THAT(boxes(), SizeIs(1));
  EXPECT_THAT(texts(list), ElementsAre("Door Events"));
  EXPECT_EQ(database.openCursors(), 0);
}

class EventsLoadedTest : public CatalogueTest {
 protected:
  EventsLoadedTest() {
    answerTypes({eventType("Door", 0, "DoorEvents", 0, 999), eventType("Door", 0, "More", 1, 2),
                 eventType("Alarm", 2, "AlarmEvents", 5000, 5999),
                 eventType("Input", 3, "InputEvents", 6000, 6999)});
    catalogue.InitEventTypeInfoArray();
    for (EventTypeInfo& type : catalogue.types()) type.EventsLoaded = true;
  }
  std::vector<bool> marks() {
    std::vector<bool> found;
    for (const EventTypeInfo& type : catalogue.types()) found.push_back(type.EventsLoaded);
    return found;
  }

  ListBox list{noParent, "lstEventFilters", {}};
};

TEST_F(EventsLoadedTest, IsClearedForEveryElementOfTheFilter) {
  catalogue.ClearEventsLoaded(0);
  EXPECT_THAT(marks(), ElementsAre(false, false, true, true));
}

TEST_F(EventsLoadedTest, StaysWithAnUnknownFilter) {
  catalogue.ClearEventsLoaded(9);
  EXPECT_THAT(marks(), ElementsAre(true, true, true, true));
}

TEST_F(EventsLoadedTest, ClearingAllGoesByListPositionNotByItemData) {
  list.addItem("Input Events", 3);
  list.addItem("Alarm Events", 2);
  catalogue.ClearAllEventsLoaded(list);
  EXPECT_THAT(marks(), ElementsAre(false, false, true, true));
}

TEST_F(EventsLoadedTest, ClearingAllReachesThePositionsOfTheList) {
  for (int filter = 0; filter < 3; ++filter) list.addItem("Filter", 100 + filter);
  catalogue.ClearAllEventsLoaded(list);
  EXPECT_THAT(marks(), ElementsAre(false, false, false, true));
}

TEST_F(EventsLoadedTest, ClearingAllWithAnEmptyListClearsNothing) {
  catalogue.ClearAllEventsLoaded(list);
  EXPECT_THAT(marks(), ElementsAre(true, true, true, true));
}

}  // namespace
}  // namespace pelorin::test
