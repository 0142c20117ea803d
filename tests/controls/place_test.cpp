// Anchored controls follow the size of what they stand on.
#include "controls/place.h"

#include <gtest/gtest.h>

#include <limits>

#include "controls/form.h"

namespace pelorin::test {

namespace {

constexpr Size designed{1000, 500};
constexpr Anchor all = Anchor::Left | Anchor::Top | Anchor::Right | Anchor::Bottom;
constexpr DesignPlace filling{100, 50, 800, 400, all};

class AnchoredForm : public Form {
 public:
  AnchoredForm() : Form("frmAnchored", "Anchored", designed) { setResizable({}, {700, 300}); }
  void Form_Resize() override { seen = cmdCorner.place(); }

  TextBox txtFixed{*this, "txtFixed", {10, 20, 30, 40}};
  Frame fraFilling{*this, "fraFilling", filling, ""};
  Button cmdInside{fraFilling, "cmdInside", {600, 100, 200, 30, Anchor::Top | Anchor::Right}, ""};
  Button cmdCorner{*this, "cmdCorner", {900, 460, 80, 30, Anchor::Right | Anchor::Bottom}, ""};
  Place seen;
};

}  // namespace

TEST(AnchoredPlace, StaysAtTheLeftAndTop) {
  EXPECT_EQ(anchoredPlace({10, 20, 30, 40}, designed, {2000, 2000}), (Place{10, 20, 30, 40}));
}

TEST(AnchoredPlace, MovesWithTheRightAndBottom) {
  const DesignPlace corner{900, 460, 80, 30, Anchor::Right | Anchor::Bottom};
  EXPECT_EQ(anchoredPlace(corner, designed, {1300, 400}), (Place{1200, 360, 80, 30}));
}

TEST(AnchoredPlace, GrowsBetweenOppositeSidesAndNeverBelowNothing) {
  EXPECT_EQ(anchoredPlace(filling, designed, {1001, 499}), (Place{100, 50, 801, 399}));
  EXPECT_EQ(anchoredPlace(filling, designed, {0, 0}), (Place{100, 50, 0, 0}));
}

TEST(AnchoredForm, PlacesItsControlsBeforeItSaysThatItWasResized) {
  AnchoredForm form;
  form.userResize({1200, 600});
  EXPECT_EQ(form.txtFixed.place(), (Place{10, 20, 30, 40}));
  EXPECT_EQ(form.fraFilling.place(), (Place{100, 50, 1000, 500}));
  EXPECT_EQ(form.cmdInside.place(), (Place{800, 100, 200, 30}));
  EXPECT_EQ(form.cmdCorner.place(), (Place{1100, 560, 80, 30}));
  EXPECT_EQ(form.seen, form.cmdCorner.place());
}

TEST(AnchoredForm, FollowsDownToASizeAndComesBackExactly) {
  AnchoredForm form;
  form.userResize({0, 0});
  EXPECT_EQ(form.fraFilling.place(), (Place{100, 50, 500, 200}));
  EXPECT_EQ(form.cmdCorner.place(), (Place{600, 260, 80, 30}));
  form.userResize(designed);
  EXPECT_EQ(form.fraFilling.place(), filling.place());
}

TEST(AnchoredForm, FollowsASizeBeyondAnyScreen) {
  constexpr int huge = std::numeric_limits<int>::max();
  AnchoredForm form;
  form.userResize({huge, huge});
  EXPECT_EQ(form.client().width - rightOf(form.cmdCorner.place()), 20);
  EXPECT_EQ(form.client().height - bottomOf(form.fraFilling.place()), 50);
}

}  // namespace pelorin::test
