// Categories without events, placeholders, and a site without events of the newer controllers.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class CategoryDetailsTest : public EditorTest {
 protected:
  static constexpr int doorRow = 1;
  static constexpr int systemRow = 2;
  static constexpr int transactionRow = 3;
  static constexpr const char* noEvents = "There are no events in this category";

  ListView& listed() { return control<ListView>("lvwEvents"); }
  void answerDoors(std::vector<std::vector<Value>> rows) {
    database->answer(
        "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
        "EventID <= 199 order by EventID",
        {{"EventId", "Description", "DefaultDescription"}, std::move(rows)});
  }
};

TEST_F(CategoryDetailsTest, AnEmptyCategorySaysSoAgainAtEachClick) {
  openEditor();
  tickFilter(systemRow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(noEvents));
  tickFilter(doorRow);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(noEvents, noEvents));
  tickFilter(transactionRow);
  EXPECT_THAT(screen.boxTexts(), AllOf(SizeIs(3), Each(noEvents)));
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::None);
  tickFilter(systemRow);
  EXPECT_THAT(screen.boxTexts(), SizeIs(3));
}

TEST_F(CategoryDetailsTest, APlaceholderIsToldByItsDefaultDescriptionAlone) {
  services->enableCustomize = true;
  answerDoors({{100, "Undefined", "Door forced"},
               {101, "Door held", "Undefined"},
               {102, Null(), "UNDEFINED17"},
               {103, Null(), "Undefine d"}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(listed()), ElementsAre("00100", "00103"));
  EXPECT_EQ(listed().item(1).subItems[1], "Undefined");
}

TEST_F(CategoryDetailsTest, APlaceholderIsNotOfferedToAnEditedTriggerEither) {
  answerDoors({{100, Null(), "Undefined event 100"}, {101, Null(), "Door held"}});
  answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  EXPECT_THAT(texts(combo("cmbEvents")), ElementsAre("00101 - Door held"));
}

TEST_F(CategoryDetailsTest, ACategoryOfPlaceholdersAloneIsNotCalledEmpty) {
  answerDoors({{100, Null(), "Undefined"}});
  openEditor();
  tickFilter(doorRow);
  EXPECT_EQ(listed().count(), 0);
  EXPECT_TRUE(screen.boxes.empty());
  EXPECT_FALSE(button("cmdSelect(0)").enabled());
}

TEST_F(CategoryDetailsTest, EventsOfTheNewerControllersAreOfferedWhateverTheirName) {
  database->answer("select * from Zorn_EventDefinitions order by EventID",
                   {{"EventId", "ZornEventType", "Description", "DefaultDescription"},
                    {{80001, 20, Null(), "Undefined 80001"}}});
  openEditor();
  tickFilter(transactionRow);
  EXPECT_THAT(numbers(listed()), ElementsAre("80001"));
  EXPECT_EQ(listed().item(1).subItems[1], "Undefined 80001");
}

TEST_F(CategoryDetailsTest, ASiteWithoutEventsOfTheNewerControllersOpensAndListsNone) {
  database->answer("select count(EventID) from Zorn_EventDefinitions", {{""}, {{0}}});
  database->answer("select * from Zorn_EventDefinitions order by EventID",
                   {{"EventId", "ZornEventType", "Description", "DefaultDescription"}, {}});
  openEditor();
  tickFilter(transactionRow);
  tickFilter(doorRow);
  EXPECT_THAT(numbers(listed()), ElementsAre("00100", "00101"));
  tickFilter(transactionRow);
  EXPECT_THAT(numbers(listed()), ElementsAre("00100", "00101"));
  EXPECT_TRUE(screen.boxes.empty());
}

}  // namespace
}  // namespace pelorin::test
