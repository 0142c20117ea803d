// Editing captions: from the menu to the file.
#include "tests/fakes/typing.h"
#include "tests/location/picker_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class CustomizingTest : public PickerTest {
 protected:
  CustomizingTest() { around.services->enableCustomize = true; }

  void pick(std::size_t entry) { picker.contextMenu().userPick(entry); }
  void start() { pick(0); }
  void end() { pick(1); }
  void type(const std::string& caption) {
    picker.txtCaption.setText("");
    typeInto(picker.txtCaption, caption);
  }
  void edit(int button, const std::string& caption) {
    picker.userPress(picker.cmdMain[static_cast<std::size_t>(button)]);
    type(caption);
    picker.userKeyDown(key_code::enter);
  }
};

TEST_F(CustomizingTest, WithoutTheHostsLeaveNothingIsOfferedAndDesignCaptionsStand) {
  around.services->enableCustomize = false;
  around.environment.files[captionFile] = "[85]\r\ncmdMain(2)=Hilfe\r\n";
  open();
  EXPECT_THAT(picker.contextMenu().entries(), IsEmpty());
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
  EXPECT_FALSE(picker.txtCaption.visible());
}

TEST_F(CustomizingTest, MenuStartsAndEnds) {
  open();
  ASSERT_EQ(picker.contextMenu().entries().size(), 2U);
  EXPECT_TRUE(picker.contextMenu().entries()[0].enabled);
  EXPECT_FALSE(picker.contextMenu().entries()[1].enabled);
  start();
  EXPECT_FALSE(picker.contextMenu().entries()[0].enabled);
  EXPECT_TRUE(picker.contextMenu().entries()[1].enabled);
  end();
  EXPECT_TRUE(picker.contextMenu().entries()[0].enabled);
}

TEST_F(CustomizingTest, NoButtonActsWhileCustomising) {
  open();
  click("TT1");
  start();
  for (Button& button : picker.cmdMain) {
    picker.userPress(button);
    EXPECT_TRUE(picker.txtCaption.visible());
    EXPECT_EQ(picker.txtCaption.text(), button.text());
    picker.userKeyDown(key_code::enter);
  }
  EXPECT_TRUE(picker.isOpen());
  EXPECT_EQ(target.text, "before");
  EXPECT_THAT(around.journal.of("host: ShowHelp"), IsEmpty());
}

TEST_F(CustomizingTest, EditedCaptionIsKeptAndRestored) {
  open();
  start();
  edit(2, "&Hilfe");
  EXPECT_EQ(picker.cmdMain[2].text(), "&Hilfe");
  end();
  EXPECT_EQ(around.environment.files[captionFile],
            "[85]\r\ncmdMain(2)=&Hilfe\r\nVersion=1.0.0\r\n");
  picker.unload();
  FLocation next(around.module);
  next.setParent(target);
  around.screen.show(next);
  EXPECT_EQ(next.cmdMain[2].text(), "&Hilfe");
  next.unload();
}

TEST_F(CustomizingTest, StatusLabelCanBeEdited) {
  open();
  picker.lblLocation.userClick();
  EXPECT_FALSE(picker.txtCaption.visible());
  start();
  picker.lblLocation.userClick();
  EXPECT_TRUE(picker.txtCaption.visible());
  EXPECT_EQ(picker.txtCaption.text(), "<None>");
  type("nothing yet");
  picker.userKeyDown(key_code::enter);
  EXPECT_EQ(picker.lblLocation.text(), "nothing yet");
}

TEST_F(CustomizingTest, EditorTakesThePlaceOfTheHintAndTheFocus) {
  open();
  start();
  picker.userFocus(&picker.tvTree);
  picker.lblLocation.userClick();
  EXPECT_FALSE(picker.Label1.visible());
  EXPECT_TRUE(picker.lblCaption.visible());
  EXPECT_EQ(picker.focused(), &picker.txtCaption);
  picker.userKeyDown(key_code::enter);
  EXPECT_TRUE(picker.Label1.visible());
  EXPECT_FALSE(picker.lblCaption.visible());
  EXPECT_EQ(picker.focused(), &picker.tvTree);
}

TEST_F(CustomizingTest, EscapeKeepsTheOldCaption) {
  open();
  start();
  picker.userPress(picker.cmdMain[2]);
  type("wrong");
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
  EXPECT_FALSE(picker.txtCaption.visible());
  EXPECT_TRUE(picker.isOpen());
  EXPECT_EQ(target.text, "before");
}

TEST_F(CustomizingTest, TheTitleSaysSo) {
  open();
  EXPECT_EQ(picker.caption(), "Select Locations");
  start();
  EXPECT_EQ(picker.caption(), "Select Locations - Customising Captions");
  end();
  EXPECT_EQ(picker.caption(), "Select Locations");
}

TEST_F(CustomizingTest, EscapeEndsItAndKeepsWhatWasEdited) {
  open();
  start();
  edit(2, "Hilfe");
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(picker.caption(), "Select Locations");
  EXPECT_TRUE(picker.contextMenu().entries()[0].enabled);
  EXPECT_EQ(around.environment.files[captionFile], "[85]\r\ncmdMain(2)=Hilfe\r\nVersion=1.0.0\r\n");
  EXPECT_TRUE(picker.isOpen());
  EXPECT_EQ(target.text, "before");
  picker.userKeyDown(key_code::escape);
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(CustomizingTest, EscapeInTheTextBoxDropsThatEditFirst) {
  open();
  start();
  picker.userPress(picker.cmdMain[2]);
  type("wrong");
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(picker.caption(), "Select Locations - Customising Captions");
  EXPECT_FALSE(picker.txtCaption.visible());
  picker.userKeyDown(key_code::escape);
  EXPECT_EQ(picker.caption(), "Select Locations");
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
}

TEST_F(CustomizingTest, EndsInOrderWidthsThenSavingThenTheMode) {
  open();
  start();
  picker.userResize({10290, 9000});
  std::string whileSaving;
  around.environment.duringUpdate = [&](const std::string&) {
    whileSaving = picker.caption();
    EXPECT_EQ(picker.Label1.place().width, 8760);
  };
  end();
  EXPECT_EQ(whileSaving, "Select Locations - Customising Captions");
  EXPECT_EQ(picker.caption(), "Select Locations");
}

TEST_F(CustomizingTest, CaptionsThatCannotBeReadAreReportedAndNothingIsSavedOverThem) {
  around.environment.files[captionFile] = "[85]\r\ncmdMain(2)=&Hilfe\r\n";
  around.environment.unreadable.insert(captionFile);
  open();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "FLocation.LoadCustomResources: Line: [1-9][0-9]* :Path/File "
                           "access error: .*PelorinCaptions.ini")));
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
  EXPECT_THAT(picker.contextMenu().entries(), IsEmpty());
}

TEST_F(CustomizingTest, CaptionsThatCannotBeReadAtTheEndAreKeptForTheNextEnd) {
  around.environment.files[captionFile] = "[85]\r\ncmdMain(0)=Ja\r\n";
  open();
  start();
  edit(2, "Hilfe");
  around.environment.unreadable.insert(captionFile);
  end();
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("FLocation.Localizer1_CustomizeEnd: Line: [1-9][0-9]* "
                                       ":Path/File access error: .*PelorinCaptions.ini")));
  EXPECT_EQ(around.environment.files[captionFile], "[85]\r\ncmdMain(0)=Ja\r\n");
  around.environment.unreadable.clear();
  start();
  end();
  EXPECT_EQ(around.environment.files[captionFile],
            "[85]\r\ncmdMain(0)=Ja\r\ncmdMain(2)=Hilfe\r\nVersion=1.0.0\r\n");
}

TEST_F(CustomizingTest, CaptionsThatAnotherPickerEditedMeanwhileAreKept) {
  open();
  start();
  edit(2, "Hilfe");
  around.environment.files[captionFile] = "[85]\r\ncmdMain(0)=Ja\r\nVersion=1.0.0\r\n";
  end();
  EXPECT_EQ(around.environment.files[captionFile],
            "[85]\r\ncmdMain(0)=Ja\r\nVersion=1.0.0\r\ncmdMain(2)=Hilfe\r\n");
}

TEST_F(CustomizingTest, LeavingTheBoxOrEndingTakesTheCaption) {
  open();
  click("TT1");  // OK can be pressed then
  start();
  picker.userPress(picker.cmdMain[2]);
  type("Hilfe");
  picker.userPress(picker.cmdMain[0]);
  EXPECT_EQ(picker.cmdMain[2].text(), "Hilfe");
  EXPECT_EQ(picker.txtCaption.text(), "OK");
  EXPECT_TRUE(picker.txtCaption.visible());
  type("Gut");
  end();
  EXPECT_EQ(picker.cmdMain[0].text(), "Gut");
  EXPECT_FALSE(picker.txtCaption.visible());
}

TEST_F(CustomizingTest, EmptyCaptionBringsTheDesignsBack) {
  around.environment.files[captionFile] = "[85]\r\ncmdMain(2)=&Hilfe\r\n[12]\r\nx=y\r\n";
  open();
  EXPECT_EQ(picker.cmdMain[2].text(), "&Hilfe");
  start();
  edit(2, "");
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
  end();
  EXPECT_EQ(around.environment.files[captionFile], "[85]\r\nVersion=1.0.0\r\n[12]\r\nx=y\r\n");
}

TEST_F(CustomizingTest, ActivatingStillSetsItsTwoCaptions) {
  around.environment.files[captionFile] = "[85]\r\ncmdMain(1)=Weg\r\nLabel1=Klick\r\n";
  open("multilocation");
  EXPECT_EQ(picker.cmdMain[1].text(), "Close");
  EXPECT_EQ(picker.Label1.text(), "Double-click to add location to list");
}

TEST_F(CustomizingTest, NoStatementBelongsToTheCaptions) {
  open();
  const std::size_t before = around.database->statements().size();
  start();
  edit(2, "Hilfe");
  end();
  EXPECT_EQ(around.database->statements().size(), before);
}

TEST_F(CustomizingTest, WithoutConnectionTheCaptionsAreNotCustomised) {
  around.environment.files[captionFile] = "[85]\r\ncmdMain(2)=Hilfe\r\n";
  around.module.setDBConnection(nullptr);
  open();
  EXPECT_THAT(boxes(), testing::Contains(MatchesRegex(
                           "FLocation.LoadCustomResources: Line: [1-9].* :Object variable.*")));
  EXPECT_EQ(picker.cmdMain[2].text(), "&Help");
  EXPECT_THAT(picker.contextMenu().entries(), IsEmpty());
}

TEST_F(CustomizingTest, FailingHostIsReported) {
  around.services->failing.insert("EnableCustomize");
  open();
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex(
                  "FLocation.LoadCustomResources: Line: [1-9].* :EnableCustomize failed")));
}

TEST_F(CustomizingTest, CaptionsThatCannotBeWrittenAreReportedAndStayOnTheForm) {
  open();
  start();
  edit(2, "Hilfe");
  around.environment.canWrite = false;
  end();
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "FLocation.Localizer1_CustomizeEnd: .* :Path/File access error: .*")));
  EXPECT_EQ(picker.cmdMain[2].text(), "Hilfe");
  picker.userPress(picker.cmdMain[1]);
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(CustomizingTest, ButtonsActAgainAfterwards) {
  open();
  start();
  end();
  picker.userPress(picker.cmdMain[1]);
  EXPECT_FALSE(picker.isOpen());
  EXPECT_EQ(target.text, "");
}

TEST_F(CustomizingTest, WidthsStandStillMeanwhileAndFollowAfterwards) {
  open();
  start();
  picker.userResize({10290, 9000});
  EXPECT_EQ(picker.Label1.place().width, 4380);
  end();
  EXPECT_EQ(picker.Label1.place().width, 8760);
}

TEST_F(CustomizingTest, ClosingEndsCustomisingWithoutKeepingAnything) {
  open();
  start();
  edit(2, "Hilfe");
  picker.userClose();
  EXPECT_FALSE(picker.isOpen());
  EXPECT_FALSE(around.environment.files.contains(captionFile));
  EXPECT_THAT(picker.contextMenu().entries(), IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
