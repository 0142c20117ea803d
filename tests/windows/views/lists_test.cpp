// Combo box, list box with check marks, list view and grid.
#include <gmock/gmock.h>

#include "driver/operate.h"
#include "driver/report_list.h"
#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"
#include "win32/views/windows_api.h"

namespace pelorin::test {

namespace {

class Lists : public Desk {
 protected:
  void SetUp() override { open(form); }
  HWND control(const std::string& name) const { return find(form, name); }
  LRESULT ask(const std::string& name, UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(control(name), message, w, l);
  }
  void wheelOver(const std::string& name) {
    POINT at{5, 5};
    ClientToScreen(control(name), &at);
    PostMessageW(control(name), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(at.x, at.y));
    pump();
  }
  std::string cell(const std::string& name, int row, int column) const {
    return driver::cell(control(name), row, column);
  }
  int rowCount(const std::string& name) const { return driver::rowCount(control(name)); }
  int selectedRow(const std::string& name) const { return driver::selectedRow(control(name)); }
  bool isChecked(int row) const { return driver::isRowChecked(control("lvwEvents"), row); }
  void clickRow(const std::string& name, int row) {
    click(control(name), driver::rowPlace(control(name), row));
  }
  void clickCheck(int row) {
    click(control("lvwEvents"), driver::checkPlace(control("lvwEvents"), row));
  }
  void clickFilter(int row) {
    click(control("lstFilters"), driver::listBoxPlace(control("lstFilters"), row));
  }
  void showSecondPage() {
    form.tabs.setTab(1);
    pump();
  }

  SampleForm form;
};

}  // namespace

TEST_F(Lists, AComboShowsRowsAndCurrentRowOfItsModel) {
  EXPECT_EQ(driver::comboRows(control("cmbKind")).size(), 5U);
  EXPECT_EQ(driver::comboRow(control("cmbKind")), -1);
  form.cmbKind.clear();
  form.cmbKind.addItem("Ü");
  form.cmbKind.addItem("B");
  form.cmbKind.setListIndex(1);
  pump();
  EXPECT_THAT(driver::comboRows(control("cmbKind")), testing::ElementsAre("Ü", "B"));
  EXPECT_EQ(driver::comboRow(control("cmbKind")), 1);
}

TEST_F(Lists, AnArrowInAComboPicksTheNextRow) {
  clickMiddle(control("txtName"));
  press(VK_TAB);
  ASSERT_EQ(focusName(), "cmbKind");
  press(VK_DOWN);
  press(VK_DOWN);
  EXPECT_EQ(form.cmbKind.listIndex(), 1);
  EXPECT_EQ(form.count("click cmbKind"), 2);
}

TEST_F(Lists, AComboFollowsAHandlerThatChoosesAnotherRow) {
  form.cmbKind.onClick = [&] { form.cmbKind.setListIndex(4); };
  SetFocus(control("cmbKind"));
  press(VK_DOWN);
  EXPECT_EQ(driver::comboRow(control("cmbKind")), 4);
}

TEST_F(Lists, TheWheelOverAClosedComboDoesNothing) {
  form.cmbKind.setListIndex(2);
  pump();
  wheelOver("cmbKind");
  SetFocus(control("cmbKind"));
  wheelOver("cmbKind");
  EXPECT_EQ(driver::comboRow(control("cmbKind")), 2);
  EXPECT_EQ(form.cmbKind.listIndex(), 2);
}

// Its third row is current and its list is open.
class DroppedCombo : public Lists {
 protected:
  void SetUp() override {
    Lists::SetUp();
    form.cmbKind.setListIndex(2);
    pump();
    before_ = form.count("click cmbKind");
    SetFocus(control("cmbKind"));
    ask("cmbKind", CB_SHOWDROPDOWN, TRUE);
    pump();
  }
  int clicks() { return form.count("click cmbKind") - before_; }

 private:
  int before_ = 0;
};

TEST_F(DroppedCombo, EnterClosesItAndPressesNoButton) {
  press(VK_RETURN);
  EXPECT_EQ(ask("cmbKind", CB_GETDROPPEDSTATE), 0);
  EXPECT_EQ(form.count("click cmdOK"), 0);
}

TEST_F(DroppedCombo, ChoosingTheCurrentRowAgainIsAClick) {
  press(VK_RETURN);
  EXPECT_EQ(clicks(), 1);
  EXPECT_EQ(form.cmbKind.listIndex(), 2);
}

TEST_F(DroppedCombo, ChoosingAnotherRowIsOneClick) {
  press(VK_DOWN);
  press(VK_RETURN);
  EXPECT_EQ(clicks(), 1);
  EXPECT_EQ(form.cmbKind.listIndex(), 3);
}

TEST_F(DroppedCombo, LeavingItWithoutAChoiceIsNoClick) {
  press(VK_ESCAPE);
  EXPECT_EQ(clicks(), 0);
}

TEST_F(Lists, OneClickTogglesOneFilter) {
  clickFilter(1);
  clickFilter(3);
  EXPECT_TRUE(form.lstFilters.selected(1));
  EXPECT_TRUE(form.lstFilters.selected(3));
  clickFilter(1);
  EXPECT_FALSE(form.lstFilters.selected(1));
  EXPECT_EQ(ask("lstFilters", LB_GETSELCOUNT), 1);
  EXPECT_EQ(form.count("click lstFilters"), 3);
}

TEST_F(Lists, TwoQuickClicksToggleAFilterTwice) {
  clickFilter(0);
  clickFilter(0);
  EXPECT_FALSE(form.lstFilters.selected(0));
  EXPECT_EQ(form.count("click lstFilters"), 2);
}

TEST_F(Lists, SpaceTogglesTheFilterUnderTheCaret) {
  clickFilter(2);
  press(VK_DOWN);
  press(VK_SPACE);
  EXPECT_TRUE(form.lstFilters.selected(3));
}

TEST_F(Lists, AFilterThatTheHandlerTicksAgainStaysTicked) {
  clickFilter(2);
  bool ticking = false;
  form.lstFilters.onClick = [&] {
    if (ticking) return;
    ticking = true;
    form.lstFilters.setSelected(2, true);
    ticking = false;
  };
  clickFilter(2);
  EXPECT_TRUE(form.lstFilters.selected(2));
  EXPECT_TRUE(driver::isTicked(control("lstFilters"), 2));
}

TEST_F(Lists, FilterTextsAreThereForAccessibilityTools) {
  EXPECT_EQ(driver::listBoxRows(control("lstFilters")).at(5), "Filter 5");
}

TEST_F(Lists, AListViewAsksItsModelForTexts) {
  EXPECT_EQ(rowCount("lvwEvents"), 30);
  EXPECT_EQ(cell("lvwEvents", 0, 0), "Type 1");
  EXPECT_EQ(cell("lvwEvents", 9, 1), "00010");
  form.lvwEvents.remove(1);
  pump();
  EXPECT_EQ(rowCount("lvwEvents"), 29);
  EXPECT_EQ(cell("lvwEvents", 0, 0), "Type 2");
}

TEST_F(Lists, AClickOnTheBoxTogglesTheCheck) {
  clickCheck(2);
  EXPECT_TRUE(form.lvwEvents.item(3).checked);
  EXPECT_TRUE(isChecked(2));
  clickCheck(2);
  EXPECT_FALSE(form.lvwEvents.item(3).checked);
  EXPECT_EQ(form.count("check 3"), 2);
}

TEST_F(Lists, SpaceTogglesTheCheckOfTheFocusedRow) {
  clickRow("lvwEvents", 1);
  EXPECT_FALSE(form.lvwEvents.item(2).checked);
  press(VK_SPACE);
  EXPECT_TRUE(form.lvwEvents.item(2).checked);
  press(VK_SPACE);
  EXPECT_FALSE(form.lvwEvents.item(2).checked);
}

TEST_F(Lists, ChecksSetByTheProgramAreShown) {
  form.lvwEvents.setAllChecked(true);
  pump();
  EXPECT_TRUE(isChecked(0));
  EXPECT_TRUE(isChecked(29));
  EXPECT_EQ(form.count("check 1"), 0);
}

TEST_F(Lists, AClickedRowIsSelectedOnce) {
  clickRow("lvwEvents", 4);
  EXPECT_EQ(form.lvwEvents.selectedIndex(), 5);
  EXPECT_EQ(form.count("select 5"), 1);
}

TEST_F(Lists, TheSelectionStaysWithItsItemWhenRowsAreInserted) {
  clickRow("lvwEvents", 4);
  ListItem item;
  item.text = "new";
  form.lvwEvents.add(1, item);
  pump();
  EXPECT_EQ(selectedRow("lvwEvents"), 5);
  EXPECT_EQ(form.count("select 6"), 0);
}

TEST_F(Lists, TypingFindsARowAndNoMatchLeavesTheSelection) {
  clickRow("lvwEvents", 0);
  type(L"zzz");
  EXPECT_EQ(selectedRow("lvwEvents"), 0);
}

TEST_F(Lists, FiftyThousandRowsFollow) {
  for (int i = 0; i < 50000; ++i) {
    ListItem item;
    item.text = "row";
    form.lvwEvents.add(0, item);
  }
  pump();
  EXPECT_EQ(rowCount("lvwEvents"), 50030);
}

TEST_F(Lists, AGridShowsDataRowsBelowItsHeader) {
  showSecondPage();
  EXPECT_EQ(rowCount("grid"), 40);
  EXPECT_EQ(cell("grid", 0, 0), "Trigger 1");
  EXPECT_EQ(cell("grid", 39, 1), "00040");
}

TEST_F(Lists, AGridHasItsHiddenColumnsWithoutWidth) {
  showSecondPage();
  const HWND header = reinterpret_cast<HWND>(ask("grid", LVM_GETHEADER));
  EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 4);
  EXPECT_EQ(ask("grid", LVM_GETCOLUMNWIDTH, 3), 0);
  EXPECT_EQ(cell("grid", 0, 3), "77");
}

TEST_F(Lists, AHiddenColumnCannotBeGivenAWidth) {
  showSecondPage();
  const HWND header = reinterpret_cast<HWND>(ask("grid", LVM_GETHEADER));
  ask("grid", LVM_SETCOLUMNWIDTH, 3, LVSCW_AUTOSIZE_USEHEADER);
  EXPECT_EQ(ask("grid", LVM_GETCOLUMNWIDTH, 3), 0);
  HDITEMW item{};
  item.mask = HDI_WIDTH;
  item.cxy = 50;
  SendMessageW(header, HDM_SETITEMW, 3, reinterpret_cast<LPARAM>(&item));
  EXPECT_EQ(ask("grid", LVM_GETCOLUMNWIDTH, 3), 0);
  // A column in sight still can.
  ask("grid", LVM_SETCOLUMNWIDTH, 2, 77);
  EXPECT_EQ(ask("grid", LVM_GETCOLUMNWIDTH, 2), 77);
}

TEST_F(Lists, AHiddenColumnCannotBeDraggedIntoSightNorDoubleClicked) {
  showSecondPage();
  const HWND header = reinterpret_cast<HWND>(ask("grid", LVM_GETHEADER));
  // Brings the last edge into sight.
  ask("grid", LVM_SETCOLUMNWIDTH, 0, 60);
  int reached = 0;
  // From the right: the column in front can be dragged, and takes the edge with it.
  for (const int off : {3, 2, 1, 0, -1, -2}) {
    RECT last{};
    SendMessageW(header, HDM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&last));
    HDHITTESTINFO hit{{last.right + off, last.bottom / 2}, 0, -1};
    SendMessageW(header, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.iItem == 3) ++reached;
    const LPARAM from = MAKELPARAM(hit.pt.x, hit.pt.y);
    const LPARAM to = MAKELPARAM(hit.pt.x + 60, hit.pt.y);
    SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, from);
    SendMessageW(header, WM_MOUSEMOVE, MK_LBUTTON, to);
    SendMessageW(header, WM_LBUTTONUP, 0, to);
    SendMessageW(header, WM_LBUTTONDBLCLK, MK_LBUTTON, from);
    SendMessageW(header, WM_LBUTTONUP, 0, from);
    EXPECT_EQ(ask("grid", LVM_GETCOLUMNWIDTH, 3), 0) << off;
  }
  EXPECT_GT(reached, 0);
}

TEST_F(Lists, TheCurrentRowOfAGridIsSelectedWithoutAnAct) {
  showSecondPage();
  form.grid.setRow(3);
  pump();
  EXPECT_EQ(selectedRow("grid"), 2);
  form.grid.clearCurrentRow();
  pump();
  EXPECT_EQ(selectedRow("grid"), -1);
  EXPECT_EQ(ask("grid", LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED), 2);
}

TEST_F(Lists, TheOperatorMovesTheCurrentRowByMouseAndKeys) {
  showSecondPage();
  clickRow("grid", 1);
  EXPECT_EQ(form.grid.row(), 2);
  press(VK_DOWN);
  EXPECT_EQ(form.grid.row(), 3);
}

TEST_F(Lists, AClickOnEmptySpaceKeepsTheCurrentRow) {
  form.grid.setRows(4);
  showSecondPage();
  clickRow("grid", 1);
  RECT area{};
  GetClientRect(control("grid"), &area);
  click(control("grid"), {20, area.bottom - 5});
  EXPECT_EQ(form.grid.row(), 2);
  EXPECT_EQ(selectedRow("grid"), 1);
}

TEST_F(Lists, ADoubleClickOnARowReachesTheGrid) {
  showSecondPage();
  clickRow("grid", 1);
  clickRow("grid", 1);
  EXPECT_EQ(form.count("double-click grid"), 1);
}

TEST_F(Lists, TheScrollPlaceOfAGridIsKnownToTheModelAndObeyed) {
  showSecondPage();
  form.grid.setTopRow(11);
  pump();
  EXPECT_EQ(ask("grid", LVM_GETTOPINDEX), 10);
  ask("grid", WM_VSCROLL, SB_LINEDOWN);
  EXPECT_EQ(form.grid.topRow(), 12);
  form.grid.setRow(1);
  pump();
  EXPECT_EQ(ask("grid", LVM_GETTOPINDEX), 11);
}

TEST_F(Lists, AGridWithoutDataRowsShowsItsHeaderOnly) {
  form.grid.setRows(1);
  showSecondPage();
  EXPECT_EQ(rowCount("grid"), 0);
  EXPECT_EQ(selectedRow("grid"), -1);
}

}  // namespace pelorin::test
