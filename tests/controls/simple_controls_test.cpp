// Buttons, labels, check boxes and text boxes.
#include "controls/simple_controls.h"

#include <gtest/gtest.h>

#include "tests/controls/listening_view.h"
#include "tests/fakes/typing.h"

namespace pelorin::test {

TEST(Button, RaisesItsClickOnlyWhenItCanBeReached) {
  Button button(noParent, "cmdOK", {}, "OK");
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  button.userClick();
  button.setEnabled(false);
  button.userClick();
  EXPECT_EQ(clicks, 1);
}

TEST(Label, WithoutAHandlerAClickDoesNothing) {
  const Label label(noParent, "lbl", {}, "x");
  label.userClick();
}

TEST(CheckBox, RaisesTheClickWhenItsStateReallyChanges) {
  CheckBox box(noParent, "chk", {}, "x");
  int clicks = 0;
  box.onClick = [&] { ++clicks; };
  box.setChecked(false);
  EXPECT_EQ(clicks, 0);
  box.setChecked(true);
  box.setChecked(true);
  EXPECT_EQ(clicks, 1);
  box.userToggle();
  EXPECT_FALSE(box.checked());
  EXPECT_EQ(clicks, 2);
}

TEST(CheckBox, ShowsItsNewStateBeforeTheClickIsRaised) {
  CheckBox box(noParent, "chk", {}, "x");
  const ListeningView view(box);
  bool shown = false;
  box.onClick = [&] { shown = view.heard(Aspect::Checks); };
  box.setChecked(true);
  EXPECT_TRUE(shown);
}

TEST(CheckBox, CannotBeToggledByTheOperatorWhileDisabled) {
  CheckBox box(noParent, "chk", {}, "x");
  box.setEnabled(false);
  box.userToggle();
  EXPECT_FALSE(box.checked());
}

TEST(TextBox, AHandlerDiscardsACharacterByZero) {
  TextBox box(noParent, "txt", {});
  box.onKeyPress = [](char32_t& key) {
    if (key == 'x') key = 0;
  };
  typeInto(box, "axb");
  EXPECT_EQ(box.text(), "ab");
}

TEST(TextBox, TypedTextIsNotEchoedToTheViewButSetTextIs) {
  TextBox box(noParent, "txt", {});
  const ListeningView view(box);
  box.userText("typed");
  EXPECT_TRUE(view.changes.empty());
  EXPECT_EQ(box.text(), "typed");
  box.setText("set");
  EXPECT_TRUE(view.heard(Aspect::Text));
}

TEST(TextBox, TakesNoKeysWhileItCannotBeReached) {
  TextBox box(noParent, "txt", {});
  box.setEnabled(false);
  EXPECT_FALSE(box.userKey('a'));
}

TEST(TextBox, ValidatesWhenItIsLeft) {
  TextBox box(noParent, "txt", {});
  box.userLeave();
  int validated = 0;
  box.onValidate = [&] { ++validated; };
  box.userLeave();
  EXPECT_EQ(validated, 1);
}

TEST(TextBox, NeverValidatesWhileItIsDisabled) {
  TextBox box(noParent, "txt", {});
  int validated = 0;
  box.onValidate = [&] { ++validated; };
  box.setEnabled(false);
  box.userLeave();
  EXPECT_EQ(validated, 0);
}

}  // namespace pelorin::test
