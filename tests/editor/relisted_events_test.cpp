// Events of a category that was read before, in part or while another click came in.
#include <algorithm>

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RelistedEventsTest : public EditorTest {
 protected:
  static constexpr int alarmRow = 0;
  static constexpr int doorRow = 1;
  static constexpr int systemRow = 2;
  const std::string doors =
      "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
      "EventID <= 199 order by EventID";
  const std::string integrated = "exec pav_FetchInstalledIntegratedEvents";

  ListView& events() { return control<ListView>("lvwEvents"); }
  ComboBox& event() { return combo("cmbEvents"); }
  void answerDoors(std::initializer_list<int> ids) {
    Result result{{"EventId", "Description", "DefaultDescription"}, {}};
    for (const int id : ids) result.rows.push_back({id, Null(), "Door event"});
    database->answer(doors, result);
  }
  std::vector<std::string> checkedNumbers() {
    std::vector<std::string> found;
    for (int row = 1; row <= events().count(); ++row) {
      if (events().item(row).checked) found.push_back(events().item(row).subItems.front());
    }
    return found;
  }
  // The n-th time that `sql` is sent, the host lets `act` in.
  void letIn(const std::string& sql, int time, const std::function<void()>& act) {
    times_ = 0;
    database->onStatement = [this, sql, time, act](const std::string& sent) {
      if (sent == sql && ++times_ == time) act();
    };
  }

 private:
  int times_ = 0;
};

TEST_F(RelistedEventsTest, ARecordReadAgainTakesThePlaceOfItsRows) {
  answerDoors({100, 101, 102});
  database->failFetch(doors, 2);
  openEditor();
  tickFilter(doorRow);
  ASSERT_THAT(numbers(events()), ElementsAre("00100", "00101"));
  database->mend();
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "00102", "05001", "05002"));
}

TEST_F(RelistedEventsTest, SelectAllThenSavesEachEventOnce) {
  database->failFetch(doors, 2);
  openEditor();
  addLocations(1);
  tickFilter(doorRow);
  database->mend();
  tickFilter(alarmRow);
  button("cmdSelect(0)").userClick();
  journal.clear();
  EXPECT_TRUE(editor->SaveTriggerAction());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 4U);
}

TEST_F(RelistedEventsTest, EventsThatComeAgainKeepTheirCheckMark) {
  answerDoors({100, 101, 102});
  database->failFetch(doors, 2);
  openEditor();
  tickFilter(doorRow);
  checkEvents({2});
  database->mend();
  tickFilter(alarmRow);
  EXPECT_THAT(checkedNumbers(), ElementsAre("00101"));
}

TEST_F(RelistedEventsTest, EventsThatAreGoneDoNotStay) {
  answerDoors({100, 101, 102});
  database->failFetch(doors, 2);
  openEditor();
  tickFilter(doorRow);
  database->mend();
  answerDoors({101, 103});
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00101", "00103", "05001", "05002"));
}

TEST_F(RelistedEventsTest, ARecordThatHasNothingMoreLosesItsRows) {
  database->failFetch(doors, 1);
  openEditor();
  tickFilter(doorRow);
  ASSERT_EQ(events().count(), 1);
  database->mend();
  answerDoors({});
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("05001", "05002"));
}

TEST_F(RelistedEventsTest, AFailureThatComesEarlierKeepsWhatWasListed) {
  answerDoors({100, 101, 102});
  database->failFetch(doors, 2);
  openEditor();
  tickFilter(doorRow);
  checkEvents({2});
  database->failFetch(doors, 1);
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"));
  EXPECT_THAT(checkedNumbers(), ElementsAre("00101"));
  database->fail(doors);
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101"));
}

TEST_F(RelistedEventsTest, RowsOfOtherRecordsOfTheCategoryAreNotTouched) {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Door", 1, "DoorEvents", 100, 199}, {"Door", 1, "MoreEvents", 100, 199}}});
  const std::string more =
      "select EventId, Description, DefaultDescription from MoreEvents where EventID >= 100 and "
      "EventID <= 199 order by EventID";
  database->answer(more, {{"EventId", "Description", "DefaultDescription"},
                          {{100, Null(), "As in the other table"}, {105, Null(), "More"}}});
  database->failFetch(more, 1);
  openEditor();
  tickFilter(doorRow);
  ASSERT_THAT(numbers(events()), ElementsAre("00100", "00100", "00101"));
  checkEvents({2});
  database->mend();
  tickFilter(systemRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00100", "00101", "00105"));
  EXPECT_FALSE(events().item(1).checked);
  EXPECT_TRUE(events().item(2).checked);
}

TEST_F(RelistedEventsTest, ASecondClickThatComesInListsNoEventTwice) {
  openEditor();
  letIn(doors, 1, [this] {
    tickFilter(doorRow);
    tickFilter(doorRow);
  });
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101"));
  EXPECT_EQ(database->openCursors(), 0);
}

TEST_F(RelistedEventsTest, AnUntickThatComesInIsAnsweredAfterwards) {
  openEditor();
  letIn(doors, 1, [this] { tickFilter(doorRow); });
  tickFilter(doorRow);
  EXPECT_FALSE(control<ListBox>("lstEventFilters").selected(doorRow));
  EXPECT_THAT(numbers(events()), IsEmpty());
}

TEST_F(RelistedEventsTest, AnotherCategoryThatComesInIsListedToo) {
  openEditor();
  letIn(doors, 1, [this] { tickFilter(alarmRow); });
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"));
}

TEST_F(RelistedEventsTest, AClickThatComesInIsAnsweredThoughTheFirstOneFails) {
  openEditor();
  database->fail(integrated, "no rights");
  letIn(integrated, 1, [this] { tickFilter(doorRow); });
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"));
}

TEST_F(RelistedEventsTest, AClickThatComesInWhileEditingOffersNoEventTwice) {
  answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0});
  editCctv();
  letIn(doors, 1, [this] { tickFilter(alarmRow); });
  tickFilter(alarmRow);
  EXPECT_THAT(texts(event()), ElementsAre("00100 - Door forced", "00101 - Door held"));
  EXPECT_EQ(event().selectedData(), 101);
}

TEST_F(RelistedEventsTest, ACategoryReadBehindAClosedWindowIsReadAgainByTheNextEditor) {
  openEditor();
  frmTriggerAction& closing = *editor;
  letIn(doors, 1, [&closing] { closing.unload(); });
  tickFilter(doorRow);
  EXPECT_FALSE(editor->isOpen());
  const std::unique_ptr<frmTriggerAction> closed = std::move(editor);
  openEditor();
  tickFilter(doorRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101"));
}

TEST_F(RelistedEventsTest, AnAnswerGivenBehindAClosedWindowLeavesTheNextEditorAlone) {
  openEditor();
  tickFilter(doorRow);
  checkEvents({1});
  std::unique_ptr<frmTriggerAction> closed;
  screen.duringBox = [&](const BoxRequest&) {
    if (closed) return;
    editor->unload();
    closed = std::move(editor);
    openEditor();
    tickFilter(doorRow);
  };
  tickFilter(doorRow);
  ASSERT_NE(closed, nullptr);
  tickFilter(alarmRow);
  EXPECT_THAT(numbers(events()), ElementsAre("00100", "00101", "05001", "05002"))
      << "the doors are listed once";
}

}  // namespace
}  // namespace pelorin::test
