// A control is a model: it holds what an operator sees and raises the events a form answers.
// A native peer (or nothing, when running head-less) mirrors it.
#pragma once

#include <string>

#include "controls/parent.h"
#include "controls/place.h"

namespace pelorin {

enum class ControlKind {
  Label,
  TextBox,
  CheckBox,
  Button,
  ComboBox,
  ListBox,
  ListView,
  TreeView,
  Grid,
  TabControl,
  Frame,
};

// What a view has to look at again. `index` names the row or page where one is concerned, else -1.
enum class Aspect {
  Text,  // caption or text
  Visible,
  Enabled,
  Place,
  Bold,
  Columns,    // columns of a list view or grid, pictures of a tree
  Items,      // any number of items were added, removed or changed
  Item,       // the content of item `index`
  Selection,  // current item, row, node or page
  Checks,     // check marks (of item `index`, or of any when -1)
};

struct Change {
  Aspect aspect = Aspect::Text;
  int index = -1;
};

// A view is told after the model changed and reads the new state from the model. It may be told
// many times in a row: views of long lists must coalesce.
class ControlView {
 public:
  virtual void modelChanged(const Change& change) = 0;

 protected:
  ~ControlView() = default;
};

class Control {
 public:
  Control(Parent parent, ControlKind kind, std::string name, const DesignPlace& design,
          std::string text = {});
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  ControlKind kind() const noexcept { return kind_; }
  // The design name, such as "cmbDVRUnit"; a member of a control array is "cmdAddEdit(1)".
  const std::string& name() const noexcept { return name_; }

  // Caption of labels, buttons, check boxes and frames (with & mnemonics), text of text boxes.
  const std::string& text() const noexcept { return text_; }
  virtual void setText(const std::string& text);

  // The control's own setting, whatever its container or tab page shows.
  bool visible() const noexcept { return visible_; }
  void setVisible(bool visible);
  bool enabled() const noexcept { return enabled_; }
  void setEnabled(bool enabled);
  // Something stands in front of the control: it stays where it is, out of the operator's reach.
  bool covered() const noexcept { return covered_; }
  void setCovered(bool covered);
  const DesignPlace& design() const noexcept { return design_; }
  const Place& place() const noexcept { return place_; }
  void setPlace(const Place& place);
  bool bold() const noexcept { return bold_; }
  void setBold(bool bold);
  const std::string& tag() const noexcept { return tag_; }
  void setTag(const std::string& tag) { tag_ = tag; }

  // Null for a control that stands by itself.
  Form* form() const noexcept { return parent_.form(); }
  // A frame, a tab control (then `page` says on which page), or null for the form itself.
  Control* container() const noexcept { return parent_.container(); }
  int page() const noexcept { return parent_.page(); }

  // Whether an operator could reach it now: visible, enabled and not covered, and so are its
  // containers, and its page is in front.
  bool reachable() const noexcept;

  ControlView* view() const noexcept { return view_; }
  void setView(ControlView* view) noexcept { view_ = view; }

 protected:
  void notify(Aspect aspect, int index = -1) const;
  void storeText(const std::string& text) { text_ = text; }

 private:
  Parent parent_;
  ControlKind kind_;
  std::string name_;
  std::string text_;
  std::string tag_;
  DesignPlace design_;
  Place place_;
  bool visible_ = true;
  bool enabled_ = true;
  bool covered_ = false;
  bool bold_ = false;
  ControlView* view_ = nullptr;
};

}  // namespace pelorin
