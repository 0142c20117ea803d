// The events of the trigger tab, all at once and category by category, and the editor's help.
#include <algorithm>

#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::waitFor;
using testing::Each;

constexpr int guardCategory = 6;

class EventsJourney : public Journey {
 protected:
  HWND events() { return control(editor, "lvwEvents"); }
  HWND filters() { return control(editor, "lstEventFilters"); }
  std::vector<bool> checks() {
    std::vector<bool> states;
    for (int row = 0; row < driver::rowCount(events()); ++row) {
      states.push_back(driver::isRowChecked(events(), row));
    }
    return states;
  }
  void press(const char* button, bool expected) {
    clickButton(control(editor, button));
    waitFor(button, [&] {
      const std::vector<bool> states = checks();
      return std::all_of(states.begin(), states.end(), [&](bool each) { return each == expected; });
    });
  }
  bool buttonsEnabled() {
    const bool select = IsWindowEnabled(control(editor, "cmdSelect(0)")) != FALSE;
    const bool deselect = IsWindowEnabled(control(editor, "cmdSelect(1)")) != FALSE;
    EXPECT_EQ(select, deselect);
    return select;
  }
  void listGuardEvents() {
    driver::tickRow(filters(), guardCategory);
    waitFor("events", [&] { return driver::rowCount(events()) > 0; });
  }
  void untickAndAnswer(int button) {
    driver::tickRow(filters(), guardCategory);
    EXPECT_EQ(driver::answerBox(button).text,
              "There are events of this type selected. Would you like to unselect them?");
    waitFor("editor to be operated again", [&] { return IsWindowEnabled(editor); });
  }
  void expectHelp(const char* title) {
    clickButton(control(editor, "cmdHelp"));
    waitFor(title, [&] { return helpText().starts_with(title); });
  }

  HWND editor = nullptr;
};

TEST_F(EventsJourney, SelectAllAndDeselectAllTakeEveryEventOfTheList) {
  editor = openEditor();
  EXPECT_FALSE(buttonsEnabled());
  listGuardEvents();
  EXPECT_TRUE(buttonsEnabled());
  press("cmdSelect(0)", true);
  press("cmdSelect(1)", false);
}

TEST_F(EventsJourney, WhatSelectAllTicksIsSavedEventByEvent) {
  editor = openEditor();
  listGuardEvents();
  press("cmdSelect(0)", true);
  const auto listed = static_cast<std::size_t>(driver::rowCount(events()));
  addDoors(editor, {"Post room"});
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_EQ(audit().size(), listed);
  EXPECT_THAT(audit(), Each(testing::StartsWith("Add TriggerAction 0 Trigger Event 6")));
}

TEST_F(EventsJourney, UntickingACategoryWithChosenEventsTakesThemAwayOnYes) {
  editor = openEditor();
  listGuardEvents();
  driver::clickCheck(events(), 1);
  untickAndAnswer(IDYES);
  waitFor("no event", [&] { return driver::rowCount(events()) == 0; });
  EXPECT_FALSE(driver::isTicked(filters(), guardCategory));
  EXPECT_FALSE(buttonsEnabled());
}

TEST_F(EventsJourney, UntickingACategoryWithChosenEventsChangesNothingOnNo) {
  editor = openEditor();
  listGuardEvents();
  driver::clickCheck(events(), 1);
  const std::vector<driver::Row> rows = driver::rowsOf(events());
  const std::vector<bool> before = checks();
  untickAndAnswer(IDNO);
  waitFor("tick", [&] { return driver::isTicked(filters(), guardCategory); });
  EXPECT_EQ(driver::rowsOf(events()), rows);
  EXPECT_EQ(checks(), before);
  EXPECT_TRUE(buttonsEnabled());
}

TEST_F(EventsJourney, UntickingACategoryWithoutChosenEventsAsksNothing) {
  editor = openEditor();
  listGuardEvents();
  driver::tickRow(filters(), guardCategory);
  waitFor("no event", [&] { return driver::rowCount(events()) == 0; });
  EXPECT_FALSE(driver::findBox());
}

TEST_F(EventsJourney, HelpIsThatOfTheTabInSight) {
  editor = openEditor();
  expectHelp("The Trigger tab");
  driver::chooseTab(control(editor, "SSTab1"), 1);
  expectHelp("The Action tab");
}

}  // namespace
}  // namespace pelorin::test
