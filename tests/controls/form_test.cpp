// Keys, focus and buttons of a form without a window.
#include "controls/form.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/fakes/recording_screen.h"

namespace pelorin::test {

namespace {

class TwoBoxForm : public Form {
 public:
  TwoBoxForm() : Form("frmTwo", "Two", {1000, 500}) {
    setDefaultButton(&cmdOK);
    setCancelButton(&cmdCancel);
    const auto note = [this](const char* event) { return [=, this] { events.push_back(event); }; };
    txtOne.onValidate = note("validate one");
    cmdOther.onClick = note("other");
    cmdOK.onClick = note("ok");
    cmdCancel.onClick = note("cancel");
  }
  ~TwoBoxForm() override { unload(); }

  bool Form_KeyDown(int keyCode) override { return keyCode == keyUsed; }
  void Form_Resize() override { events.push_back("resize"); }
  using Form::setCloseIsCancel;

  TextBox txtOne{*this, "txtOne", {}};
  TextBox txtTwo{*this, "txtTwo", {}};
  Button cmdOther{*this, "cmdOther", {}, "Other"};
  Button cmdOK{*this, "cmdOK", {}, "OK"};
  Button cmdCancel{*this, "cmdCancel", {}, "Cancel"};
  int keyUsed = 0;
  std::vector<std::string> events;
};

class ListeningFormView : public FormView {
 public:
  virtual ~ListeningFormView() = default;
  void captionChanged() override { ++captions; }
  void focusMoved() override { ++focusMoves; }
  int captions = 0;
  int focusMoves = 0;
};

class FormActs : public ::testing::Test {
 protected:
  void TearDown() override { form.setView(nullptr); }

  Journal journal;
  RecordingScreen screen{journal};
  TwoBoxForm form;
  ListeningFormView view;
};

using Events = std::vector<std::string>;

}  // namespace

TEST_F(FormActs, FindsAControlByItsName) {
  EXPECT_EQ(form.find("cmdOther"), &form.cmdOther);
  EXPECT_EQ(form.find("nobody"), nullptr);
}

TEST_F(FormActs, ABoxIsValidatedWhenTheFocusGoesToAnotherControl) {
  form.userFocus(&form.txtOne);
  form.userFocus(&form.txtOne);
  EXPECT_TRUE(form.events.empty());
  form.userFocus(&form.txtTwo);
  EXPECT_EQ(form.events, Events{"validate one"});
}

TEST_F(FormActs, EnterLeavesTheBoxAndPressesTheDefaultButton) {
  form.setView(&view);
  form.userFocus(&form.txtOne);
  form.userKeyDown(key_code::enter);
  EXPECT_EQ(form.events, (Events{"validate one", "ok"}));
  EXPECT_EQ(form.focused(), &form.cmdOK);
  EXPECT_EQ(view.focusMoves, 2);
}

TEST_F(FormActs, EnterOnAnotherButtonPressesThatOne) {
  form.userFocus(&form.cmdOther);
  form.userKeyDown(key_code::enter);
  EXPECT_EQ(form.events, Events{"other"});
}

TEST_F(FormActs, EnterDoesNothingWhileTheDefaultButtonIsDisabled) {
  form.cmdOK.setEnabled(false);
  form.userFocus(&form.txtOne);
  form.userKeyDown(key_code::enter);
  EXPECT_TRUE(form.events.empty());
}

TEST_F(FormActs, EscapePressesTheCancelButton) {
  form.userFocus(&form.txtOne);
  form.userKeyDown(key_code::escape);
  EXPECT_EQ(form.events, Events{"cancel"});
}

TEST_F(FormActs, TheFormUsesAKeyUpBeforeButtonsGetIt) {
  form.keyUsed = key_code::enter;
  form.userKeyDown(key_code::enter);
  EXPECT_TRUE(form.events.empty());
}

TEST_F(FormActs, CloseIsCancelUnlessTheFormSaysOtherwise) {
  screen.show(form);
  form.userClose();
  EXPECT_EQ(form.events, Events{"cancel"});
  EXPECT_TRUE(form.isOpen());
  form.setCloseIsCancel(false);
  form.userClose();
  EXPECT_EQ(form.events, Events{"cancel"});
  EXPECT_FALSE(form.isOpen());
}

TEST_F(FormActs, AResizeIsRaisedWhenTheSizeReallyChanges) {
  form.userResize({1000, 500});
  EXPECT_TRUE(form.events.empty());
  form.userResize({1001, 500});
  EXPECT_EQ(form.events, Events{"resize"});
  EXPECT_EQ(form.client(), (Size{1001, 500}));
}

TEST_F(FormActs, ASizeBeyondAnyScreenIsOneThatCanBeReckonedWith) {
  constexpr int huge = std::numeric_limits<int>::max();
  form.userResize({huge, huge});
  EXPECT_GE(form.client().width, 500000);
  EXPECT_LT(form.client().width, huge / 1440);
  form.userResize({-1, -huge});
  EXPECT_EQ(form.client(), (Size{0, 0}));
}

TEST_F(FormActs, TheCaptionIsShownWhenItChanges) {
  form.setView(&view);
  form.setCaption("Two");
  form.setCaption("Three");
  EXPECT_EQ(view.captions, 1);
}

TEST_F(FormActs, HasAHandleOnlyWhileItIsOpen) {
  EXPECT_EQ(form.hwnd(), 0U);
  screen.show(form);
  EXPECT_NE(form.hwnd(), 0U);
  form.unload();
  EXPECT_EQ(form.hwnd(), 0U);
}

TEST_F(FormActs, TheContextMenuPicksEnabledEntriesOnly) {
  form.contextMenu().setEntries({{"One", [&] { form.events.push_back("one"); }},
                                 {"Two", [&] { form.events.push_back("two"); }, false}});
  form.contextMenu().userPick(0);
  form.contextMenu().userPick(1);
  form.contextMenu().userPick(2);
  EXPECT_EQ(form.events, Events{"one"});
}

TEST_F(FormActs, AMenuEntryMayReplaceTheMenu) {
  form.contextMenu().setEntries({{"Start", [&] {
                                    form.contextMenu().setEntries({});
                                    form.events.push_back("started");
                                  }}});
  form.contextMenu().userPick(0);
  EXPECT_EQ(form.events, Events{"started"});
  EXPECT_TRUE(form.contextMenu().entries().empty());
}

}  // namespace pelorin::test
