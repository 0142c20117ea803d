// Keys in native windows: focus, default and cancel button, mnemonics.
#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"

namespace pelorin::test {

namespace {

class Keyboard : public Desk {
 protected:
  void SetUp() override { open(form); }
  void focusOn(const std::string& name) {
    SendMessageW(windowOf(form), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(find(form, name)), TRUE);
    pump();
    ASSERT_EQ(focusName(), name);
  }

  SampleForm form;
};

// Wants Space and Enter before the tree gets them.
class GreedyForm : public SampleForm {
 public:
  bool Form_KeyDown(int keyCode) override {
    events.push_back("key " + std::to_string(keyCode));
    return keyCode == key_code::space || (keyCode == key_code::enter && wantsEnter);
  }
  bool wantsEnter = true;
};

}  // namespace

TEST_F(Keyboard, TheFocusStartsOnTheFirstControl) {
  EXPECT_EQ(focusName(), "tabs");
}

TEST_F(Keyboard, TabWalksInTheOrderOfTheForm) {
  const std::vector<std::string> order{"txtName",   "cmbKind",   "chkActive", "lstFilters",
                                       "lvwEvents", "txtInside", "cmdInside", "cmdOK",
                                       "cmdCancel", "cmdHelp",   "tabs",      "txtName"};
  for (const std::string& next : order) {
    press(VK_TAB);
    EXPECT_EQ(focusName(), next);
  }
  press(VK_TAB, {VK_SHIFT});
  EXPECT_EQ(focusName(), "tabs");
}

TEST_F(Keyboard, LeavingATextBoxValidatesItBeforeTheNextControlHasTheFocusForGood) {
  focusOn("txtName");
  press(VK_TAB);
  EXPECT_EQ(form.count("validate txtName"), 1);
  EXPECT_EQ(form.focused(), &form.cmbKind);
}

TEST_F(Keyboard, EnterLeavesTheBoxAndThenPressesTheDefaultButton) {
  focusOn("txtName");
  press(VK_RETURN);
  ASSERT_GE(form.events.size(), 2U);
  EXPECT_EQ(form.events[form.events.size() - 2], "validate txtName");
  EXPECT_EQ(form.events.back(), "click cmdOK");
  EXPECT_EQ(focusName(), "cmdOK");
}

TEST_F(Keyboard, EnterOnAButtonPressesThatButton) {
  focusOn("cmdInside");
  press(VK_RETURN);
  EXPECT_EQ(form.events.back(), "click cmdInside");
  EXPECT_EQ(form.count("click cmdOK"), 0);
}

TEST_F(Keyboard, EscapePressesTheCancelButton) {
  focusOn("lvwEvents");
  press(VK_ESCAPE);
  EXPECT_EQ(form.count("click cmdCancel"), 1);
}

TEST_F(Keyboard, AMnemonicOfALabelFocusesItsControl) {
  press('N', {VK_MENU});
  EXPECT_EQ(focusName(), "txtName");
}

TEST_F(Keyboard, AMnemonicOfAButtonPressesIt) {
  press('H', {VK_MENU});
  EXPECT_EQ(form.count("click cmdHelp"), 1);
}

TEST_F(Keyboard, ControlTabTurnsPagesAndMovesTheFocusOutOfTheHiddenOne) {
  focusOn("txtName");
  press(VK_TAB, {VK_CONTROL});
  EXPECT_EQ(form.tabs.tab(), 1);
  EXPECT_EQ(focusName(), "tabs");
  EXPECT_EQ(form.count("validate txtName"), 1);
  EXPECT_FALSE(isShown(find(form, "txtName")));
  EXPECT_TRUE(isShown(find(form, "tvTree")));
  press(VK_PRIOR, {VK_CONTROL});
  EXPECT_EQ(form.tabs.tab(), 0);
}

TEST_F(Keyboard, TheMnemonicOfAPageBringsItToTheFront) {
  press('S', {VK_MENU});
  EXPECT_EQ(form.tabs.tab(), 1);
  press('F', {VK_MENU});
  EXPECT_EQ(form.tabs.tab(), 0);
}

TEST_F(Keyboard, AClickOnATabTurnsThePage) {
  RECT tab{};
  const HWND tabs = find(form, "tabs");
  SendMessageW(tabs, TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&tab));
  focusOn("txtName");
  click(tabs, {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2});
  EXPECT_EQ(form.tabs.tab(), 1);
  EXPECT_EQ(form.count("validate txtName"), 1);
  EXPECT_EQ(focusName(), "tabs");
}

TEST_F(Keyboard, APageTurnedByTheProgramDoesNotKeepTheFocusHidden) {
  focusOn("txtName");
  form.tabs.setTab(1);
  pump();
  EXPECT_EQ(focusName(), "tabs");
}

TEST_F(Keyboard, AControlThatIsDisabledOrHiddenHandsTheFocusOn) {
  focusOn("cmdInside");
  form.cmdInside.setEnabled(false);
  pump();
  EXPECT_EQ(focusName(), "cmdOK");
  form.cmdOK.setVisible(false);
  pump();
  EXPECT_EQ(focusName(), "cmdCancel");
  press(VK_TAB);
  EXPECT_EQ(focusName(), "cmdHelp");
}

TEST_F(Keyboard, AButtonThatDisablesItselfHandsTheFocusOn) {
  form.cmdInside.onClick = [&] { form.cmdInside.setEnabled(false); };
  clickMiddle(find(form, "cmdInside"));
  EXPECT_EQ(focusName(), "cmdOK");
}

TEST_F(Keyboard, AHeldEnterKeyPressesOnce) {
  PostMessageW(focus(), WM_KEYDOWN, VK_RETURN, 0x001C0001);
  PostMessageW(focus(), WM_KEYDOWN, VK_RETURN, 0x401C0001);
  pump();
  EXPECT_EQ(form.count("click cmdOK"), 1);
}

TEST_F(Keyboard, KeysForTheHostAreLeftAlone) {
  SetForegroundWindow(host());
  pump();
  PostMessageW(host(), WM_KEYDOWN, VK_RETURN, 0x001C0001);
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, host(), WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
  EXPECT_EQ(message.wParam, static_cast<WPARAM>(VK_RETURN));
}

TEST_F(Keyboard, TheFormSeesKeysBeforeTheTree) {
  screen().unload(form);
  GreedyForm greedy;
  greedy.tabs.setTab(1);
  open(greedy);
  clickMiddle(find(greedy, "tvTree"));
  press(VK_SPACE);
  EXPECT_EQ(greedy.events.back(), "key 32");
  press(VK_RETURN);
  EXPECT_EQ(greedy.events.back(), "key 13");
  greedy.wantsEnter = false;
  press(VK_RETURN);
  EXPECT_EQ(greedy.events.back(), "click cmdOK");
}

TEST_F(Keyboard, TheContextMenuIsOpenToKeysAndPicksOneEntry) {
  form.contextMenu().setEntries({{"&One", [&] { form.events.push_back("one"); }},
                                 {"&Two", [&] { form.events.push_back("two"); }}});
  PostMessageW(windowOf(form), WM_CONTEXTMENU, 0, MAKELPARAM(-1, -1));
  PostMessageW(windowOf(form), WM_KEYDOWN, VK_DOWN, 0x01500001);
  PostMessageW(windowOf(form), WM_KEYDOWN, VK_DOWN, 0x01500001);
  PostMessageW(windowOf(form), WM_KEYDOWN, VK_RETURN, 0x001C0001);
  pump();
  EXPECT_EQ(form.events.back(), "two");
  EXPECT_EQ(form.count("click cmdOK"), 0);
}

}  // namespace pelorin::test
