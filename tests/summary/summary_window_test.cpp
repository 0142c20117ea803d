// The window as it is laid out.
#include <set>

#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;

class SummaryWindowTest : public SummaryTest {
 protected:
  bool overlap(const Place& a, const Place& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
  }
  void expectAllInSightAndApart() {
    const auto& controls = form.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
      const Place& place = controls[i]->place();
      EXPECT_GE(place.left, 0) << controls[i]->name();
      EXPECT_GE(place.top, 0) << controls[i]->name();
      EXPECT_LE(place.left + place.width, form.client().width) << controls[i]->name();
      EXPECT_LE(place.top + place.height, form.client().height) << controls[i]->name();
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        EXPECT_FALSE(overlap(place, controls[j]->place()))
            << controls[i]->name() << " and " << controls[j]->name();
      }
    }
  }
};

TEST_F(SummaryWindowTest, IsCalledPelorin) {
  EXPECT_EQ(form.name(), "frmTASummary");
  EXPECT_EQ(form.caption(), "Pelorin");
}

TEST_F(SummaryWindowTest, HasItsControlsInTabOrder) {
  std::vector<std::string> found;
  for (const Control* control : form.controls()) {
    found.push_back(control->name() + "=" + control->text());
  }
  EXPECT_THAT(found, ElementsAre("MSFlexGrid1=", "cmdAddEdit(0)=&Add...", "cmdAddEdit(1)=&Edit...",
                                 "cmdDelete=&Delete", "cmdHelp=&Help", "cmdClose=Close"));
}

TEST_F(SummaryWindowTest, MnemonicsAreUnique) {
  std::set<char> letters;
  for (const Control* control : form.controls()) {
    const std::size_t at = control->text().find('&');
    if (at == std::string::npos) continue;
    EXPECT_TRUE(letters.insert(control->text().at(at + 1)).second) << control->text();
  }
}

TEST_F(SummaryWindowTest, EditAndDeleteAreDisabledBeforeTheLoad) {
  EXPECT_FALSE(editAndDeleteEnabled());
  EXPECT_TRUE(button("cmdAddEdit(0)").enabled());
  EXPECT_TRUE(button("cmdHelp").enabled());
  EXPECT_TRUE(button("cmdClose").enabled());
}

TEST_F(SummaryWindowTest, EnterEditsAndEscapeCloses) {
  EXPECT_EQ(form.defaultButton(), &edit);
  EXPECT_EQ(form.cancelButton(), &button("cmdClose"));
}

TEST_F(SummaryWindowTest, EverythingIsInSightAtFirst) {
  expectAllInSightAndApart();
}

TEST_F(SummaryWindowTest, GridShowsAllItsColumnsAtFirst) {
  open();
  int columns = 0;
  for (int column = 0; column < grid().columns(); ++column) columns += grid().columnWidth(column);
  constexpr int scrollBarAndBorder = 330;
  EXPECT_GE(grid().place().width, columns + scrollBarAndBorder);
}

TEST_F(SummaryWindowTest, GridTakesTheSpaceOfALargerWindow) {
  open();
  const Place grid0 = grid().place();
  const Place add0 = button("cmdAddEdit(0)").place();
  const Place close0 = button("cmdClose").place();
  const Size larger{form.client().width + 3000, form.client().height + 2000};
  form.userResize(larger);
  EXPECT_EQ(grid().place(),
            (Place{grid0.left, grid0.top, grid0.width + 3000, grid0.height + 2000}));
  EXPECT_EQ(button("cmdAddEdit(0)").place(),
            (Place{add0.left, add0.top + 2000, add0.width, add0.height}));
  EXPECT_EQ(button("cmdClose").place(),
            (Place{close0.left + 3000, close0.top + 2000, close0.width, close0.height}));
  expectAllInSightAndApart();
}

TEST_F(SummaryWindowTest, EverythingIsInSightAtTheSmallestSize) {
  open();
  ASSERT_TRUE(form.resizable());
  constexpr Size frame{400, 700};
  form.userResize({form.smallest().width - frame.width, form.smallest().height - frame.height});
  expectAllInSightAndApart();
}

TEST_F(SummaryWindowTest, NoSizeIsNegativeInAWindowWithoutSpace) {
  open();
  form.userResize({0, 0});
  for (const Control* control : form.controls()) {
    EXPECT_GT(control->place().width, 0) << control->name();
    EXPECT_GT(control->place().height, 0) << control->name();
  }
}

}  // namespace
}  // namespace pelorin::test
