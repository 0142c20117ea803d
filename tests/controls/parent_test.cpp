// Controls register themselves with the form that they stand on.
#include "controls/parent.h"

#include <gmock/gmock.h>

#include <optional>

#include "controls/form.h"
#include "controls/tab_control.h"

namespace pelorin::test {

namespace {

using testing::ElementsAre;

// Some controls of a form may stand in an object of their own.
struct Panel {
  explicit Panel(Parent page) : fraPanel(page, "fraPanel", {}, "Panel") {}
  Frame fraPanel;
  TextBox txtPanel{fraPanel, "txtPanel", {}};
};

class PanelForm : public Form {
 public:
  PanelForm() : Form("frmPanels", "Panels", {1000, 500}) {}
  using Form::setCancelButton;
  using Form::setDefaultButton;

  TabControl tabs{*this, "tabs", {}, {"One", "Two"}};
  Panel panel{tabs.page(1)};
  Button cmdOK{*this, "cmdOK", {}, "OK"};
};

std::vector<std::string> namesOf(const Form& form) {
  std::vector<std::string> names;
  for (const Control* control : form.controls()) names.push_back(control->name());
  return names;
}

}  // namespace

TEST(Parent, TheOrderOfDeclarationIsTheTabOrderAlsoThroughPanels) {
  const PanelForm form;
  EXPECT_THAT(namesOf(form), ElementsAre("tabs", "fraPanel", "txtPanel", "cmdOK"));
}

TEST(Parent, AControlKnowsItsFormContainerAndPage) {
  PanelForm form;
  EXPECT_EQ(form.panel.fraPanel.container(), &form.tabs);
  EXPECT_EQ(form.panel.fraPanel.page(), 1);
  EXPECT_EQ(form.panel.txtPanel.container(), &form.panel.fraPanel);
  EXPECT_EQ(form.panel.txtPanel.page(), 0);
  EXPECT_EQ(form.panel.txtPanel.form(), &form);
  EXPECT_EQ(form.cmdOK.container(), nullptr);
}

TEST(Parent, AFormForgetsAControlThatIsGone) {
  PanelForm form;
  std::optional<Button> passing(std::in_place, form, "cmdPassing", DesignPlace{}, "Passing");
  form.setDefaultButton(&*passing);
  form.setCancelButton(&*passing);
  form.userFocus(&*passing);
  passing.reset();
  EXPECT_EQ(form.find("cmdPassing"), nullptr);
  EXPECT_EQ(form.controls().size(), 4U);
  EXPECT_EQ(form.defaultButton(), nullptr);
  EXPECT_EQ(form.cancelButton(), nullptr);
  EXPECT_EQ(form.focused(), nullptr);
}

TEST(Parent, AControlCanStandByItself) {
  const Button button(noParent, "cmd", {}, "Button");
  EXPECT_EQ(button.form(), nullptr);
  EXPECT_TRUE(button.reachable());
}

}  // namespace pelorin::test
