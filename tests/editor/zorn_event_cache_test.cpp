// The newer controllers' events, read once for an editor.
#include "editor/zorn_event_cache.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class ZornEventCacheTest : public ::testing::Test, protected EditorSite {
 protected:
  ZornEventCache cache{module};
  ListView events{
      noParent, "lvwEvents", {}, {{"Type", 1}, {"Event No.", 1}, {"Description", 1}}, true};
  ComboBox combo{noParent, "cmbEvents", {}};

  void load() { cache.ZornLoadEventCache(); }
  void show(std::int32_t category) { cache.ZornDisplayFilteredEvents(events, combo, category); }
};

TEST_F(ZornEventCacheTest, CountsThenReadsAllDefinitions) {
  load();
  EXPECT_THAT(database->statements(),
              ElementsAre("select count(EventID) from Zorn_EventDefinitions",
                          "select * from Zorn_EventDefinitions order by EventID"));
  EXPECT_EQ(database->mostOpenCursors(), 1);
}

TEST_F(ZornEventCacheTest, MemoryIsNotTakenForWhatACountPromises) {
  database->answer("select count(EventID) from Zorn_EventDefinitions",
                   {{""}, {{std::int64_t{2147483647}}}});
  load();
  show(8);
  EXPECT_THAT(screen.boxes, ::testing::IsEmpty());
  EXPECT_EQ(events.count(), 2);
}

TEST_F(ZornEventCacheTest, AppendsTheCategorysEventsTaggedWithTheirNumber) {
  load();
  events.add(0, {"", "Door", {"99999", "later"}, ""});
  show(8);
  EXPECT_THAT(numbers(events), ElementsAre("99999", "80001", "80003"));
  EXPECT_EQ(events.item(2).text, "ZornTransaction");
  EXPECT_EQ(events.item(2).subItems[1], "Card read");
  EXPECT_EQ(events.item(2).tag, "80001");
  EXPECT_FALSE(events.item(2).checked);
}

TEST_F(ZornEventCacheTest, AddsToTheComboWithABareHyphenAndTheNumberAsItemData) {
  load();
  show(8);
  EXPECT_THAT(texts(combo), ElementsAre("80001-Card read", "80003-Card refused"));
  EXPECT_EQ(combo.row(1).itemData, 80003);
}

TEST_F(ZornEventCacheTest, ShowingTwiceListsOnceButFillsTheComboAgain) {
  load();
  show(8);
  show(8);
  EXPECT_EQ(events.count(), 2);
  EXPECT_EQ(combo.listCount(), 4);
}

TEST_F(ZornEventCacheTest, AnotherCategoryShowsNothingOfIt) {
  load();
  show(9);
  EXPECT_EQ(events.count(), 0);
  EXPECT_EQ(combo.listCount(), 0);
}

TEST_F(ZornEventCacheTest, HidingRemovesTheCategorysRowsAndTheyCanBeShownAgain) {
  load();
  show(8);
  show(11);
  cache.ZornUnDisplayFilteredEvents(events, 8);
  EXPECT_THAT(numbers(events), ElementsAre("80002"));
  show(8);
  EXPECT_THAT(numbers(events), ElementsAre("80002", "80001", "80003"));
}

TEST_F(ZornEventCacheTest, HidingWhatIsNotShownRemovesNothing) {
  load();
  ListItem row;
  row.tag = "80001";
  row.subItems = {"80001"};
  events.add(0, row);
  cache.ZornUnDisplayFilteredEvents(events, 8);
  EXPECT_EQ(events.count(), 1);
}

TEST_F(ZornEventCacheTest, HidingRemovesEveryRowWithTheTag) {
  load();
  show(8);
  events.add(1, ListItem(events.item(1)));
  cache.ZornUnDisplayFilteredEvents(events, 8);
  EXPECT_EQ(events.count(), 0);
}

TEST_F(ZornEventCacheTest, TypesHaveTheirTexts) {
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(20), "ZornTransaction");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(21), "ZornInternal");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(22), "ZornExternal");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(23), "");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(24), "ZornMiscellaneoud");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(25), "ZornSoftware");
  EXPECT_EQ(ZornEventCache::ZornEventTypeText(0), "");
}

TEST_F(ZornEventCacheTest, ADescriptionNeedsCustomisedTexts) {
  services->enableCustomize = true;
  load();
  show(11);
  EXPECT_EQ(events.item(1).subItems[1], "Kept");
  ZornEventCache plain(module);
  services->enableCustomize = false;
  plain.ZornLoadEventCache();
  events.clear();
  plain.ZornDisplayFilteredEvents(events, combo, 11);
  EXPECT_EQ(events.item(1).subItems[1], "Battery low");
}

TEST_F(ZornEventCacheTest, MoreOrFewerRowsThanCountedAreAllThatCame) {
  for (const int counted : {0, 1, 50}) {
    database->answer("select count(EventID) from Zorn_EventDefinitions", {{""}, {{counted}}});
    ZornEventCache other(module);
    other.ZornLoadEventCache();
    events.clear();
    other.ZornDisplayFilteredEvents(events, combo, 8);
    EXPECT_EQ(events.count(), 2) << counted;
    other.ZornDisplayFilteredEvents(events, combo, 0);
    EXPECT_EQ(events.count(), 2) << counted;
  }
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(ZornEventCacheTest, AFailingStatementIsReportedAndTheRowsThatCameStay) {
  database->failFetch("select * from Zorn_EventDefinitions order by EventID", 2);
  load();
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.ZornLoadEventCache: Line: "));
  show(8);
  show(11);
  EXPECT_THAT(numbers(events), ElementsAre("80001", "80002"));
}

}  // namespace
}  // namespace pelorin::test
