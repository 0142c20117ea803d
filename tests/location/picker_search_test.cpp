// Enter and Space on the tree add a location; Space unless it belongs to what the operator types to
// find one.
#include "tests/location/picker_fixture.h"

namespace pelorin::test {
namespace {

using testing::IsEmpty;

class PickerKeysTest : public PickerTest {};

TEST_F(PickerKeysTest, EnterAndSpaceOnTheTreeAddAsADoubleClickDoes) {
  open("multilocation");
  picker.userFocus(&picker.tvTree);
  click("TT1");
  picker.userKeyDown(key_code::enter);
  click("TT2");
  picker.userKeyDown(key_code::space);
  EXPECT_EQ(target.lvwLocation.count(), 2);
  EXPECT_EQ(picker.lblLocation.text(), "D2 - R&D added");
}

TEST_F(PickerKeysTest, EnterAndSpaceElsewhereAddNothing) {
  open("multilocation");
  click("TT1");
  picker.userFocus(&picker.cmdMain[2]);
  picker.userKeyDown(key_code::space);
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(target.lvwLocation.count(), 0);
  EXPECT_EQ(around.journal.lines().back(), "host: ShowHelp(178)");
}

TEST_F(PickerKeysTest, KeysWithoutASelectedNodeAddNothing) {
  open("multilocation");
  picker.userFocus(&picker.tvTree);
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(target.lvwLocation.count(), 0);
  EXPECT_THAT(boxes(), IsEmpty());
}

class PickerSearchTest : public PickerTest {
 protected:
  PickerSearchTest() {
    open("multilocation");
    picker.userFocus(&picker.tvTree);
    click("TT1");
  }
  // As the tree gets the keys: what the form does not use up is a character for it.
  void typeText(const std::string& text) {
    for (const char key : text) {
      if (!picker.Form_KeyDown(key)) picker.tvTree.userKey(static_cast<char32_t>(key));
    }
  }
  int added() const { return target.lvwLocation.count(); }
};

TEST_F(PickerSearchTest, SpaceInTheMiddleOfASearchAddsNothing) {
  typeText("FRONT D");
  EXPECT_EQ(added(), 0);
}

TEST_F(PickerSearchTest, SpaceAddsAfterAPauseOfTwoSeconds) {
  typeText("FR");
  around.environment.now += 2000;
  typeText(" ");
  EXPECT_EQ(added(), 0);
  around.environment.now += 2001;
  typeText(" ");
  EXPECT_EQ(added(), 1);
}

TEST_F(PickerSearchTest, ASpaceThatSearchesKeepsTheSearchRunning) {
  typeText("A");
  for (int i = 0; i < 3; ++i) {
    around.environment.now += 1500;
    typeText(" ");
  }
  EXPECT_EQ(added(), 0);
}

TEST_F(PickerSearchTest, SpaceAddsAfterTheOperatorMovedOnByAnArrow) {
  typeText("FR");
  constexpr int downKey = 40;
  picker.Form_KeyDown(downKey);
  typeText(" ");
  EXPECT_EQ(added(), 1);
}

TEST_F(PickerSearchTest, EnterAddsWhileASearchIsRunning) {
  typeText("FR");
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(added(), 1);
}

TEST_F(PickerSearchTest, KeysThatAreNoCharactersStartNoSearch) {
  picker.tvTree.userKey(U'\b');
  typeText(" ");
  EXPECT_EQ(added(), 1);
}

}  // namespace
}  // namespace pelorin::test
