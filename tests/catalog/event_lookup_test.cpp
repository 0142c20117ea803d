// Which filter an event belongs to, what it is called, and what returns it to normal.
#include "tests/catalog/catalogue_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

std::string descriptionQuery(const std::string& table, int id) {
  return "select EventId, Description, DefaultDescription from " + table +
         " where EventId = " + std::to_string(id);
}
std::string zornDescriptionQuery(int id) {
  return "select Description, DefaultDescription from Zorn_EventDefinitions where EventId = " +
         std::to_string(id);
}
std::string zornTypeQuery(int id) {
  return "select ZornEventType from zorn_EventDefinitions where EventID = " + std::to_string(id);
}

class EventDescriptionTest : public CatalogueTest {
 protected:
  EventDescriptionTest() { loadThreeTypes(); }

  void answerDescription(const std::string& sql, Value description, Value defaultDescription) {
    database.answer(sql,
                    {{"EventId", "Description", "DefaultDescription"},
                     {{std::int64_t{42}, std::move(description), std::move(defaultDescription)}}});
  }
};

TEST_F(EventDescriptionTest, ComesFromTheTableOfTheEventsType) {
  answerDescription(descriptionQuery("DoorEvents", 42), "Ours", "Door forced");
  EXPECT_EQ(catalogue.GetEventDescription(42), "Door forced");
  EXPECT_THAT(journal.lines(),
              ElementsAre("sql: " + descriptionQuery("DoorEvents", 42), "host: EnableCustomize"));
}

TEST_F(EventDescriptionTest, IsTheCustomisedOneWhenTheHostWantsIt) {
  services.enableCustomize = true;
  answerDescription(descriptionQuery("DoorEvents", 42), "Ours", "Door forced");
  EXPECT_EQ(catalogue.GetEventDescription(42), "Ours");
}

TEST_F(EventDescriptionTest, IsTheDefaultWithoutCustomisingEvenWhereACustomisedOneExists) {
  services.enableCustomize = false;
  answerDescription(descriptionQuery("DoorEvents", 42), "Ours", "Door forced");
  EXPECT_EQ(catalogue.GetEventDescription(42), "Door forced");
}

TEST_F(EventDescriptionTest, IsTheDefaultWhenTheCustomisedOneIsNull) {
  services.enableCustomize = true;
  answerDescription(descriptionQuery("DoorEvents", 42), Null{}, "Door forced");
  EXPECT_EQ(catalogue.GetEventDescription(42), "Door forced");
}

TEST_F(EventDescriptionTest, FirstTypeWhoseRangeHoldsTheEventWins) {
  catalogue.GetEventDescription(5600);
  EXPECT_THAT(database.statements(), ElementsAre(descriptionQuery("AlarmEvents", 5600)));
}

TEST_F(EventDescriptionTest, BothEndsOfARangeBelongToIt) {
  catalogue.GetEventDescription(0);
  catalogue.GetEventDescription(999);
  EXPECT_THAT(database.statements(),
              ElementsAre(descriptionQuery("DoorEvents", 0), descriptionQuery("DoorEvents", 999)));
}

TEST_F(EventDescriptionTest, OutsideEveryRangeIsEmptyWithoutAQuery) {
  EXPECT_EQ(catalogue.GetEventDescription(1000), "");
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EventDescriptionTest, WithoutRowIsEmptyAndAsksNoHost) {
  EXPECT_EQ(catalogue.GetEventDescription(42), "");
  EXPECT_THAT(journal.lines(), SizeIs(1));
}

// Notes how many results are open when the host is asked.
class WatchingServices : public RecordingServices {
 public:
  WatchingServices(Journal& journal, ScriptedConnection& database)
      : RecordingServices(journal), database_(database) {}
  std::vector<int> openDuringCalls;

 protected:
  bool readBoolean(const char* property) override {
    openDuringCalls.push_back(database_.openCursors());
    return RecordingServices::readBoolean(property);
  }

 private:
  ScriptedConnection& database_;
};

TEST_F(EventDescriptionTest, NoResultIsOpenWhileTheHostIsAsked) {
  answerDescription(descriptionQuery("DoorEvents", 42), "", "Door forced");
  const auto watching = std::make_shared<WatchingServices>(surroundings.journal, database);
  module.setNTConnection(watching);
  catalogue.GetEventDescription(42);
  EXPECT_THAT(watching->openDuringCalls, ElementsAre(0));
}

TEST_F(EventDescriptionTest, IsReadAtEachCall) {
  answerDescription(descriptionQuery("DoorEvents", 42), "", "Door forced");
  catalogue.GetEventDescription(42);
  catalogue.GetEventDescription(42);
  EXPECT_THAT(database.statements(), SizeIs(2));
}

TEST_F(EventDescriptionTest, Of80001ComesFromTheCatalogue) {
  catalogue.GetEventDescription(80001);
  EXPECT_THAT(database.statements(), ElementsAre(descriptionQuery("InputEvents", 80001)));
}

TEST_F(EventDescriptionTest, Of80002To89999ComesFromTheZornDefinitions) {
  answerDescription(zornDescriptionQuery(80002), "Ours", "Module lost");
  EXPECT_EQ(catalogue.GetEventDescription(80002), "Module lost");
  catalogue.GetEventDescription(89999);
  EXPECT_THAT(database.statements(),
              ElementsAre(zornDescriptionQuery(80002), zornDescriptionQuery(89999)));
}

TEST_F(EventDescriptionTest, Of90000IsNeverAZornEvent) {
  EXPECT_EQ(catalogue.GetEventDescription(90000), "");
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(90000), 0);
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(EventDescriptionTest, OfAZornEventFollowsTheSameRule) {
  services.enableCustomize = true;
  answerDescription(zornDescriptionQuery(80002), "Ours", "Module lost");
  EXPECT_EQ(catalogue.ZornGetEventDescription(80002), "Ours");
  answerDescription(zornDescriptionQuery(80003), Null{}, "Module back");
  EXPECT_EQ(catalogue.ZornGetEventDescription(80003), "Module back");
}

TEST_F(EventDescriptionTest, OfAnUnknownZornEventIsEmpty) {
  EXPECT_EQ(catalogue.ZornGetEventDescription(80002), "");
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(EventDescriptionTest, FailingQueryIsReportedAndEmpty) {
  database.fail(descriptionQuery("DoorEvents", 42));
  EXPECT_EQ(catalogue.GetEventDescription(42), "");
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "Module1.GetEventDescription: Line: [1-9][0-9]* :statement failed")));
}

TEST_F(EventDescriptionTest, FailingFetchIsReportedAndClosesTheResult) {
  answerDescription(descriptionQuery("DoorEvents", 42), "", "Door forced");
  database.failFetch(descriptionQuery("DoorEvents", 42), 0);
  EXPECT_EQ(catalogue.GetEventDescription(42), "");
  EXPECT_THAT(boxes(), SizeIs(1));
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(EventDescriptionTest, FailingHostIsReportedAndEmpty) {
  services.failing = {"EnableCustomize"};
  answerDescription(descriptionQuery("DoorEvents", 42), "", "Door forced");
  EXPECT_EQ(catalogue.GetEventDescription(42), "");
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("Module1.GetEventDescription: .*")));
}

TEST_F(EventDescriptionTest, FailingZornQueryIsReportedOnceUnderItsOwnName) {
  database.fail(zornDescriptionQuery(80002));
  EXPECT_EQ(catalogue.GetEventDescription(80002), "");
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("Module1.ZornGetEventDescription: Line: [1-9][0-9]* :.*")));
}

using FilterLookupTest = EventDescriptionTest;

TEST_F(FilterLookupTest, IsTheFirstTypeWhoseRangeHoldsTheEvent) {
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(42), 0);
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(5000), 2);
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(5600), 2);
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(80000), 3);
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(FilterLookupTest, OutsideEveryRangeIsZero) {
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(1000), 0);
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(-1), 0);
}

TEST_F(FilterLookupTest, Of80001AsksTheZornDefinitions) {
  database.answer(zornTypeQuery(80001), {{"ZornEventType"}, {{std::int64_t{21}}}});
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(80001), 9);
  EXPECT_THAT(database.statements(), ElementsAre(zornTypeQuery(80001)));
}

TEST_F(FilterLookupTest, Of89999AsksTheZornDefinitions) {
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(89999), 0);
  EXPECT_THAT(database.statements(), ElementsAre(zornTypeQuery(89999)));
}

TEST_F(FilterLookupTest, OfAZornEventWithoutRowIsZero) {
  EXPECT_EQ(catalogue.ZornGetFilterIndexByEventID(80005), 0);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(FilterLookupTest, FailingZornQueryIsReportedAndZero) {
  database.fail(zornTypeQuery(80001));
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(80001), 0);
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("Module1.ZornGetFilterIndexByEventID: Line: [1-9][0-9]* :.*")));
}

TEST_F(FilterLookupTest, WhatCouldNotBeReadIsToldFromNoFilter) {
  EXPECT_EQ(catalogue.findFilter(80005), std::int16_t{0});
  database.fail(zornTypeQuery(80005));
  EXPECT_EQ(catalogue.findFilter(80005), std::nullopt);
  EXPECT_EQ(catalogue.findFilter(4000), std::int16_t{0});
}

TEST_F(FilterLookupTest, ZornEventTypesHaveTheirFilters) {
  const std::map<int, int> filters = {{20, 8}, {21, 9}, {22, 10}, {24, 11}, {25, 12}};
  for (int type = -1; type <= 30; ++type) {
    const auto found = filters.find(type);
    EXPECT_EQ(EventCatalogue::ZornEventTypeToFilterIndex(type),
              found == filters.end() ? 0 : found->second)
        << type;
  }
}

TEST_F(FilterLookupTest, FilterTypeIsTheNameWithoutEvents) {
  EXPECT_EQ(catalogue.GetFilterTypeByFilterIndex(2), "Alarm");
  EXPECT_EQ(catalogue.GetFilterTypeByFilterIndex(0), "Door");
}

TEST_F(FilterLookupTest, FilterTypeOfAnUnknownFilterIsEmpty) {
  EXPECT_EQ(catalogue.GetFilterTypeByFilterIndex(9), "");
}

TEST_F(FilterLookupTest, AnElementWithoutATableIsSkippedOnlyWhereTheTableIsNeeded) {
  answerTypes({{"Nameless", std::int64_t{5}, Null{}, std::int64_t{0}, std::int64_t{99}},
               eventType("Door", 6, "DoorEvents", 0, 99)});
  catalogue.InitEventTypeInfoArray();
  EXPECT_EQ(catalogue.GetFilterIndexByEventID(42), 5);
  EXPECT_EQ(catalogue.GetFilterTypeByFilterIndex(5), "Nameless");
  surroundings.journal.clear();
  catalogue.GetEventDescription(42);
  EXPECT_THAT(database.statements(), ElementsAre(descriptionQuery("DoorEvents", 42)));
}

TEST_F(FilterLookupTest, AfterAFailedLoadEventZeroIsInNoType) {
  database.fail(typesQuery);
  catalogue.InitEventTypeInfoArray();
  surroundings.journal.clear();
  EXPECT_EQ(catalogue.GetEventDescription(0), "");
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(FilterLookupTest, BeforeTheFirstLoadThereIsNothing) {
  EventCatalogue fresh(module);
  EXPECT_EQ(fresh.GetEventDescription(42), "");
  EXPECT_EQ(fresh.GetFilterIndexByEventID(42), 0);
  EXPECT_EQ(fresh.GetFilterTypeByFilterIndex(0), "");
}

class ReturnToNormalTest : public CatalogueTest {
 protected:
  static std::string accessQuery(int id) {
    return "select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = " +
           std::to_string(id);
  }
  static std::string integratedQuery(int id) {
    return "select IntegratedRTNId as RTNEventID from IntegratedRTNMatrix where IntegratedAlarmID "
           "= " +
           std::to_string(id);
  }
  void answerEvent(const std::string& sql, Value event) {
    database.answer(sql, {{"RTNEventID"}, {{std::move(event)}}});
  }
};

TEST_F(ReturnToNormalTest, Of5000To5999ComesFromTheAccessMatrix) {
  answerEvent(accessQuery(5000), std::int64_t{6000});
  answerEvent(accessQuery(5999), std::int64_t{6999});
  EXPECT_EQ(catalogue.GetRTNEvent(5000), 6000);
  EXPECT_EQ(catalogue.GetRTNEvent(5999), 6999);
}

TEST_F(ReturnToNormalTest, Of10000To10999ComesFromTheIntegratedMatrix) {
  answerEvent(integratedQuery(10000), std::int64_t{11000});
  answerEvent(integratedQuery(10999), std::int64_t{11999});
  EXPECT_EQ(catalogue.GetRTNEvent(10000), 11000);
  EXPECT_EQ(catalogue.GetRTNEvent(10999), 11999);
}

TEST_F(ReturnToNormalTest, OfOtherEventsIsZeroWithoutAQuery) {
  for (int id : {6000, 4999, 9999, 11000, 0, -5000, 80001}) {
    EXPECT_EQ(catalogue.GetRTNEvent(id), 0) << id;
  }
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(ReturnToNormalTest, WithoutRowIsZero) {
  EXPECT_EQ(catalogue.GetRTNEvent(5001), 0);
  EXPECT_THAT(database.statements(), ElementsAre(accessQuery(5001)));
}

TEST_F(ReturnToNormalTest, NullIsZero) {
  answerEvent(accessQuery(5001), Null{});
  EXPECT_EQ(catalogue.GetRTNEvent(5001), 0);
}

TEST_F(ReturnToNormalTest, IsTheFirstRows) {
  database.answer(accessQuery(5001),
                  {{"RTNEventID"}, {{std::int64_t{6001}}, {std::int64_t{6002}}}});
  EXPECT_EQ(catalogue.GetRTNEvent(5001), 6001);
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(ReturnToNormalTest, FailingQueryIsReportedAndZero) {
  database.fail(accessQuery(5001));
  EXPECT_EQ(catalogue.GetRTNEvent(5001), 0);
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("Module1.GetRTNEvent: Line: [1-9][0-9]* :statement failed")));
}

}  // namespace
}  // namespace pelorin::test
