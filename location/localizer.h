// Captions of one form that the operator may edit. They are kept in "PelorinCaptions.ini" beside
// the component, by the form's number and the control's name, and shown again whenever the form
// opens.
//
// Editing starts and ends from the form's context menu. In between the form hands over each control
// that is clicked: a text box opens with its caption, Enter or leaving the box takes the new
// caption, Escape keeps the old one, and an empty caption brings back the design's.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "common/environment.h"
#include "controls/form.h"
#include "database/connection.h"

namespace pelorin {

class CaptionFile;

// The controls in which a caption is edited; they take the place of `covered` meanwhile.
struct CaptionEditor {
  Label& label;
  TextBox& box;
  Control& covered;
};

class Localizer {
 public:
  Localizer(Form& form, Environment& environment, CaptionEditor editor);

  // Given in this order before apply().
  void setConnection(std::weak_ptr<Connection> connection) { connection_ = std::move(connection); }
  void setNumber(std::int16_t number) { number_ = number; }
  void setVersion(const std::string& version) { version_ = version; }

  // Shows the edited captions. Error 91 unless connection, number and version were given.
  void apply();
  // Offers the editing in the form's context menu, or takes the offer back.
  void setEnabled(bool enabled);

  std::function<void()> onCustomizeStart;
  std::function<void()> onCustomizeEnd;

  // Opens the text box for a control of `container`.
  void edit(Control& target, Form& container);
  // True when the key belonged to the text box.
  bool keyDown(int keyCode);
  // Ends the editing, as the menu does.
  void end();
  // Keeps what was edited since the last time, and what others edited meanwhile; error 75 when the
  // file cannot be read or written, and then everything stays to be kept the next time.
  void save();

 private:
  void start();
  void offer(bool customizing);
  void finishEdit();
  void takeCaption(Control& target, const std::string& caption);
  void showEditor(bool visible);
  std::string path() const;
  CaptionFile read() const;
  std::string withEdited(CaptionFile captions) const;

  Form& form_;
  Environment& environment_;
  CaptionEditor editor_;
  std::weak_ptr<Connection> connection_;
  std::optional<std::int16_t> number_;
  std::optional<std::string> version_;
  std::map<std::string, std::string> design_;  // captions by control name
  std::map<std::string, std::string> edited_;
  Control* target_ = nullptr;
  Control* focusBefore_ = nullptr;
};

}  // namespace pelorin
