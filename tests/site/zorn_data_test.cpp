// The site's data of the newer controller family carry the numbers that the component knows it by.
#include <gmock/gmock.h>

#include "catalog/zorn_family.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

using TextRows = std::vector<std::vector<std::string>>;

TEST(ZornFamily, ItsCategoriesFollowOneAnother) {
  std::int32_t category = lastOrdinaryCategory;
  for (const ZornEventKind& kind : zornEventKinds) {
    EXPECT_EQ(kind.category, ++category);
    EXPECT_TRUE(isZornCategory(category));
  }
  EXPECT_FALSE(isZornCategory(category + 1));
}

TEST_F(SiteTest, TheFamilysCategoriesAreTheLastOnes) {
  TextRows expected;
  for (const ZornEventKind& kind : zornEventKinds)
    expected.push_back({std::to_string(kind.category)});
  EXPECT_THAT(allRows(*connection_,
                      "select FilterIndex from TA_EventFilters where FilterIndex > " +
                          std::to_string(lastOrdinaryCategory) + " order by FilterIndex",
                      {"FilterIndex"}),
              ElementsAreArray(expected));
}

TEST_F(SiteTest, TheCatalogueNamesTheFamilysCategoriesAsItsRowsAreNamed) {
  TextRows expected;
  for (const ZornEventKind& kind : zornEventKinds) {
    expected.push_back({kind.text, std::to_string(kind.category)});
  }
  EXPECT_THAT(allRows(*connection_,
                      "select FilterType, filterIndex from TA_EventTypes where TableName = "
                      "'Zorn_EventDefinitions' order by filterIndex",
                      {"FilterType", "filterIndex"}),
              ElementsAreArray(expected));
}

TEST_F(SiteTest, EveryEventOfTheFamilyHasAKnownTypeAndANumberOfItsCategory) {
  RecordSet events = connection_->open("select EventId, ZornEventType from Zorn_EventDefinitions");
  while (events.next()) {
    const std::int32_t event = events.int32("EventId");
    EXPECT_TRUE(isZornEvent(event)) << event;
    const ZornEventKind* kind = zornEventKind(events.int32("ZornEventType"));
    ASSERT_NE(kind, nullptr) << event;
    const std::string number = std::to_string(event);
    EXPECT_THAT(allRows(*connection_,
                        "select filterIndex from TA_EventTypes where MinEventID <= " + number +
                            " and MaxEventID >= " + number,
                        {"filterIndex"}),
                ElementsAre(ElementsAre(std::to_string(kind->category))))
        << event;
  }
}

TEST_F(SiteTest, TheCataloguesRangesAreTheFamilysNumbers) {
  RecordSet ranges = connection_->open(
      "select min(MinEventID) as First, max(MaxEventID) as Last from TA_EventTypes where TableName "
      "= 'Zorn_EventDefinitions'");
  ASSERT_TRUE(ranges.next());
  EXPECT_EQ(ranges.int32("First"), firstZornEvent);
  EXPECT_LE(ranges.int32("Last"), lastZornEvent);
}

}  // namespace
}  // namespace pelorin
