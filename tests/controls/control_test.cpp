// What all controls have in common.
#include "controls/control.h"

#include <gtest/gtest.h>

#include "controls/simple_controls.h"
#include "controls/tab_control.h"
#include "tests/controls/error_number_of.h"
#include "tests/controls/listening_view.h"

namespace pelorin::test {

TEST(Control, KnowsItsDesignNamePlaceAndText) {
  const Label label(noParent, "lblName", {10, 20, 30, 40}, "&Name:");
  EXPECT_EQ(label.name(), "lblName");
  EXPECT_EQ(label.place(), (Place{10, 20, 30, 40}));
  EXPECT_EQ(label.text(), "&Name:");
  EXPECT_EQ(label.kind(), ControlKind::Label);
}

TEST(Control, TellsItsViewWhatChanged) {
  Label label(noParent, "lblName", {}, "a");
  const ListeningView view(label);
  label.setText("b");
  label.setVisible(false);
  label.setEnabled(false);
  label.setPlace({1, 2, 3, 4});
  label.setBold(true);
  EXPECT_EQ(view.changes.size(), 5U);
  EXPECT_TRUE(view.heard(Aspect::Text));
  EXPECT_TRUE(view.heard(Aspect::Visible));
  EXPECT_TRUE(view.heard(Aspect::Enabled));
  EXPECT_TRUE(view.heard(Aspect::Place));
  EXPECT_TRUE(view.heard(Aspect::Bold));
}

TEST(Control, SettingWhatIsAlreadySetTellsNothing) {
  Label label(noParent, "lblName", {1, 2, 3, 4}, "a");
  const ListeningView view(label);
  label.setText("a");
  label.setVisible(true);
  label.setEnabled(true);
  label.setPlace({1, 2, 3, 4});
  label.setBold(false);
  EXPECT_TRUE(view.changes.empty());
}

TEST(Control, IsReachableOnlyWhenVisibleAndEnabled) {
  Button button(noParent, "cmdOK", {}, "OK");
  EXPECT_TRUE(button.reachable());
  button.setEnabled(false);
  EXPECT_FALSE(button.reachable());
  button.setEnabled(true);
  button.setVisible(false);
  EXPECT_FALSE(button.reachable());
}

TEST(Control, IsReachableOnlyInsideAReachableContainerOnThePageInFront) {
  TabControl tabs(noParent, "tabs", {}, {"One", "Two"});
  Frame frame(tabs.page(1), "fra", {}, "Frame");
  const Button button(frame, "cmd", {}, "Button");
  EXPECT_FALSE(button.reachable());
  tabs.setTab(1);
  EXPECT_TRUE(button.reachable());
  frame.setVisible(false);
  EXPECT_FALSE(button.reachable());
  EXPECT_TRUE(button.visible()) << "its own setting";
  frame.setVisible(true);
  tabs.setEnabled(false);
  EXPECT_FALSE(button.reachable());
}

TEST(TabControl, ShowsItsFirstPageFirstAndOnlyPagesThatExist) {
  TabControl tabs(noParent, "tabs", {}, {"One", "Two"});
  EXPECT_EQ(tabs.tab(), 0);
  EXPECT_EQ(errorNumberOf([&] { tabs.setTab(2); }), error_number::invalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { tabs.setTab(-1); }), error_number::invalidPropertyValue);
  EXPECT_EQ(tabs.tab(), 0);
}

TEST(TabControl, TheOperatorCannotTurnPagesOfADisabledOne) {
  TabControl tabs(noParent, "tabs", {}, {"One", "Two"});
  const ListeningView view(tabs);
  tabs.setEnabled(false);
  tabs.userSelect(1);
  EXPECT_EQ(tabs.tab(), 0);
  tabs.setEnabled(true);
  tabs.userSelect(1);
  EXPECT_EQ(tabs.tab(), 1);
  EXPECT_TRUE(view.heard(Aspect::Selection));
}

}  // namespace pelorin::test
