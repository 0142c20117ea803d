// Labels, buttons, check boxes and text boxes.
#include <algorithm>

#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"
#include "win32/views/handles.h"
#include "win32/views/shortened_text.h"

namespace pelorin::test {

namespace {

class Values : public Desk {
 protected:
  void SetUp() override { open(form); }
  HWND control(const std::string& name) const { return find(form, name); }
  LRESULT ask(const std::string& name, UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(control(name), message, w, l);
  }

  // As they are on the screen.
  std::vector<COLORREF> pixelsOf(const std::string& name) const {
    const HWND window = control(name);
    UpdateWindow(window);
    RECT area{};
    GetClientRect(window, &area);
    const WindowDc dc(window);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < area.bottom; ++y) {
      for (int x = 0; x < area.right; ++x) pixels.push_back(GetPixel(dc.get(), x, y));
    }
    return pixels;
  }

  SampleForm form;
};

}  // namespace

TEST_F(Values, EveryControlIsOfAStandardClassAndAnswersItsName) {
  const std::vector<std::pair<std::string, std::wstring>> expected{
      {"tabs", L"SysTabControl32"}, {"lblName", L"Static"},          {"txtName", L"Edit"},
      {"cmbKind", L"ComboBox"},     {"chkActive", L"Button"},        {"lstFilters", L"ListBox"},
      {"fraGroup", L"Button"},      {"lvwEvents", L"SysListView32"}, {"cmdInside", L"Button"},
      {"tvTree", L"SysTreeView32"}, {"grid", L"SysListView32"},      {"cmdOK", L"Button"}};
  for (const auto& [name, windowClass] : expected) {
    ASSERT_NE(control(name), nullptr) << name;
    EXPECT_EQ(classOf(control(name)), windowClass) << name;
  }
  EXPECT_EQ(driver::designName(windowOf(form)), "frmSample");
}

TEST_F(Values, ANameIsCutToTheCapacityWithItsTerminator) {
  const UINT message = RegisterWindowMessageW(L"WM_GETCONTROLNAME");
  std::wstring buffer(6, L'x');
  EXPECT_EQ(SendMessageW(control("cmdCancel"), message, 5, reinterpret_cast<LPARAM>(buffer.data())),
            5);
  EXPECT_EQ(buffer, std::wstring(L"cmdC\0x", 6));
  EXPECT_EQ(SendMessageW(control("cmdCancel"), message, 0, 0), 0);
}

TEST_F(Values, ControlIdsAreUnique) {
  std::vector<int> ids;
  for (const Control* model : form.controls()) ids.push_back(GetDlgCtrlID(control(model->name())));
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

TEST_F(Values, ALabelPrecedesItsBoxInTheOrderOfWindows) {
  EXPECT_EQ(GetWindow(control("lblName"), GW_HWNDNEXT), control("txtName"));
  EXPECT_EQ(GetWindow(control("lblKind"), GW_HWNDNEXT), control("cmbKind"));
}

TEST_F(Values, TextsFollowTheModels) {
  form.setCaption("Ä caption 漢");
  form.lblName.setText("&Other:");
  form.cmdHelp.setText("H&ilfe");
  form.txtName.setText("Grüße 漢");
  pump();
  EXPECT_EQ(textOf(windowOf(form)), "Ä caption 漢");
  EXPECT_EQ(textOf(control("lblName")), "&Other:");
  EXPECT_EQ(textOf(control("cmdHelp")), "H&ilfe");
  EXPECT_EQ(textOf(control("txtName")), "Grüße 漢");
}

TEST_F(Values, ALabelThatGrowsTakesTheFreeRoomBesideIt) {
  RECT before{};
  GetWindowRect(control("lblKind"), &before);
  form.lblKind.setText("A kind that needs far more room than there is:");
  pump();
  RECT after{};
  RECT neighbour{};
  GetWindowRect(control("lblKind"), &after);
  GetWindowRect(control("cmbKind"), &neighbour);
  EXPECT_GT(after.right, before.right);
  EXPECT_LT(after.right, neighbour.left);
}

TEST_F(Values, ALabelWithDataGrowsIntoTheFreeRoomAsWell) {
  form.lblStatus.setPlace({150, 5700, 900, 195});
  pump();
  RECT before{};
  GetWindowRect(control("lblStatus"), &before);
  form.lblStatus.setText("001.01.001.D04 - Post room added");
  pump();
  RECT after{};
  RECT neighbour{};
  GetWindowRect(control("lblStatus"), &after);
  GetWindowRect(control("cmdOK"), &neighbour);
  EXPECT_GT(after.right, before.right);
  EXPECT_LT(after.right, neighbour.left);
}

TEST_F(Values, ALabelWithDataThatIsTooLongShowsItsEndAndKeepsItsWholeText) {
  const std::string text = "001.01.001.D04 - " + std::string(300, 'n');
  form.lblStatus.setText(text + " added");
  pump();
  const std::vector<COLORREF> added = pixelsOf("lblStatus");
  EXPECT_EQ(textOf(control("lblStatus")).size(), text.size() + 6);
  form.lblStatus.setText(text + " nnnnn");
  pump();
  EXPECT_NE(pixelsOf("lblStatus"), added);
}

TEST(ShortenedText, LeavesOutTheMiddleAndOnlyAsMuchAsItMust) {
  const auto oneEach = [](const std::wstring& text) { return static_cast<int>(text.size()); };
  EXPECT_EQ(shortenedInMiddle(L"abcdefgh", 8, oneEach), L"abcdefgh");
  EXPECT_EQ(shortenedInMiddle(L"abcdefgh", 7, oneEach),
            L"abc\x2026"
            L"fgh");
  EXPECT_EQ(shortenedInMiddle(L"abcdefgh", 4, oneEach),
            L"ab\x2026"
            L"h");
  EXPECT_EQ(shortenedInMiddle(L"abcdefgh", 0, oneEach), L"\x2026");
  EXPECT_EQ(shortenedInMiddle(L"", 0, oneEach), L"");
}

TEST(ShortenedText, CutsNoCharacterInTwo) {
  const auto oneEach = [](const std::wstring& text) { return static_cast<int>(text.size()); };
  const std::wstring faces = L"\xD83D\xDE00\xD83D\xDE00";
  EXPECT_EQ(shortenedInMiddle(faces, 3, oneEach), L"\xD83D\xDE00\x2026");
  EXPECT_EQ(shortenedInMiddle(faces, 2, oneEach), L"\x2026");
}

TEST_F(Values, ABoxThatTheClickBringsUpGetsTheKeyboard) {
  form.txtName.setVisible(false);
  pump();
  form.cmdHelp.onClick = [&] {
    form.txtName.setVisible(true);
    form.userFocus(&form.txtName);
  };
  clickMiddle(control("cmdHelp"));
  EXPECT_EQ(focusName(), "txtName");
  type(L"x");
  EXPECT_EQ(form.txtName.text(), "x");
}

TEST_F(Values, AClickPressesTheButtonOnceAndFocusesIt) {
  clickMiddle(control("cmdHelp"));
  EXPECT_EQ(form.count("click cmdHelp"), 1);
  EXPECT_EQ(focusName(), "cmdHelp");
  EXPECT_EQ(form.focused(), &form.cmdHelp);
}

TEST_F(Values, ATestToolPressesAButtonByMessage) {
  ask("cmdHelp", BM_CLICK);
  EXPECT_EQ(form.count("click cmdHelp"), 1);
}

TEST_F(Values, ADisabledButtonIsNotPressed) {
  form.cmdHelp.setEnabled(false);
  pump();
  EXPECT_FALSE(IsWindowEnabled(control("cmdHelp")));
  clickMiddle(control("cmdHelp"));
  EXPECT_EQ(form.count("click cmdHelp"), 0);
}

TEST_F(Values, ACheckBoxFollowsItsModelBothWays) {
  clickMiddle(control("chkActive"));
  EXPECT_TRUE(form.chkActive.checked());
  EXPECT_EQ(ask("chkActive", BM_GETCHECK), BST_CHECKED);
  form.chkActive.setChecked(false);
  pump();
  EXPECT_EQ(ask("chkActive", BM_GETCHECK), BST_UNCHECKED);
  EXPECT_EQ(form.count("click chkActive"), 2);
}

TEST_F(Values, AHandlerThatTakesTheMarkBackWins) {
  form.chkActive.onClick = [&] { form.chkActive.setChecked(false); };
  clickMiddle(control("chkActive"));
  EXPECT_EQ(ask("chkActive", BM_GETCHECK), BST_UNCHECKED);
}

TEST_F(Values, TypedTextReachesTheModel) {
  clickMiddle(control("txtInside"));
  type(L"aé漢");
  EXPECT_EQ(form.txtInside.text(), "aé漢");
}

TEST_F(Values, TheModelRefusesTypedCharactersButNotPastedText) {
  form.txtInside.onKeyPress = [](char32_t& key) {
    if (key != 8 && (key < '0' || key > '9')) key = 0;
  };
  clickMiddle(control("txtInside"));
  type(L"1a2\b3");
  EXPECT_EQ(form.txtInside.text(), "13");
  const wchar_t* pasted = L"xyz";
  ask("txtInside", EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(pasted));
  EXPECT_EQ(form.txtInside.text(), "13xyz");
}

TEST_F(Values, ACharacterOfTwoHalvesIsJudgedAsOne) {
  std::vector<char32_t> keys;
  form.txtInside.onKeyPress = [&](char32_t& key) { keys.push_back(key); };
  clickMiddle(control("txtInside"));
  type(L"\xD83D\xDE00");
  EXPECT_EQ(keys, std::vector<char32_t>{0x1F600});
  EXPECT_EQ(form.txtInside.text(), "\xF0\x9F\x98\x80");
}

TEST_F(Values, ARefusedCharacterOfTwoHalvesLeavesNothingBehind) {
  form.txtInside.onKeyPress = [](char32_t& key) {
    if (key < '0' || key > '9') key = 0;
  };
  clickMiddle(control("txtInside"));
  type(
      L"1\xD83D\xDE00"
      L"2");
  EXPECT_EQ(form.txtInside.text(), "12");
  EXPECT_EQ(textOf(control("txtInside")), "12");
}

TEST_F(Values, TextSetByTheProgramIsNoActOfTheOperator) {
  form.txtInside.onKeyPress = [&](char32_t&) { form.events.push_back("key"); };
  form.txtInside.setText("42");
  form.cmbKind.addItem("one more");
  pump();
  EXPECT_EQ(form.count("key") + form.count("click cmbKind"), 0);
}

TEST_F(Values, BoldIsShownInABoldFont) {
  form.lblStatus.setBold(true);
  pump();
  const auto font = reinterpret_cast<HFONT>(ask("lblStatus", WM_GETFONT));
  LOGFONTW description{};
  GetObjectW(font, sizeof description, &description);
  EXPECT_GE(description.lfWeight, FW_BOLD);
}

TEST_F(Values, ALabelWithDataShowsTheAmpersand) {
  const auto style = GetWindowLongW(control("lblStatus"), GWL_STYLE);
  EXPECT_NE(style & SS_NOPREFIX, 0);
  EXPECT_EQ(GetWindowLongW(control("lblName"), GWL_STYLE) & SS_NOPREFIX, 0);
}

}  // namespace pelorin::test
