// Where forms are shown: windows and who owns them, message boxes, the mouse pointer. The order in
// which windows load and unload is decided here, the same with and without native windows.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/acts.h"
#include "controls/form.h"

namespace pelorin {

enum class MousePointer { Default = 0, Hourglass = 11 };

enum class BoxIcon { None, Information, Question, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

// Titled "Pelorin". The first button is the default one.
struct BoxRequest {
  std::string text;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::Ok;
};

class Screen {
 public:
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  // Loads the form and shows it modeless, owned by the window `owner` (0: none). A form that is
  // open already is brought to the front, restored if minimised, and nothing else.
  void show(Form& form, WindowHandle owner = 0);
  // Unloads the form after every form that it owns or leads, innermost first; each gets its
  // Form_Unload.
  void unload(Form& form);
  // Unloads every open form, innermost first.
  void unloadAll();

  // In the order in which they were opened.
  const std::vector<Form*>& openForms() const noexcept { return open_; }
  // The window in front of all that the form owns, at whatever distance; null when it owns none.
  Form* innermostOwnedBy(const Form& form) const;

  // Makes `owner` the owner of an open form's window and returns the previous one.
  WindowHandle setOwner(Form& form, WindowHandle owner);

  // Asks and waits; while it waits no other window of the component takes input.
  virtual BoxAnswer messageBox(const BoxRequest& request) = 0;
  virtual MousePointer mousePointer() const = 0;
  virtual void setMousePointer(MousePointer pointer) = 0;
  virtual WindowHandle windowOf(const Form& form) const = 0;
  // Owns message boxes while none of our windows is active; 0 or a window that is gone: none.
  virtual void setHostWindow(WindowHandle window) = 0;

  // What the operator and the host are doing.
  Acts& acts() noexcept { return acts_; }

  // Keeps an unloaded form until no handler of any form can be on the call stack.
  void retire(std::unique_ptr<Form> form);
  // Frees what was retired, unless a form is just being shown or unloaded. Only for the outermost
  // message loop.
  void collect() noexcept;

 protected:
  // Makes the window, hidden; its controls need not exist before presentWindow.
  virtual void createWindow(Form& form, WindowHandle owner) = 0;
  // Makes the controls from their models and shows the window.
  virtual void presentWindow(Form& form) = 0;
  virtual void raiseWindow(Form& form) = 0;
  // The form's window is about to go: where it is the active one, `owner` becomes it.
  virtual void passActivation(Form& form, WindowHandle owner) = 0;
  virtual void destroyWindow(Form& form) = 0;
  virtual void changeOwner(Form& form, WindowHandle owner) = 0;

 private:
  struct Owned {
    Form* form;
    WindowHandle owner;
  };
  Owned* entryOf(const Form& form);
  Form* lastOwnedBy(const Form& form) const;
  void load(Form& form, WindowHandle owner);

  Acts acts_;
  std::vector<Form*> open_;
  std::vector<Owned> owners_;
  std::vector<std::unique_ptr<Form>> retired_;
  int running_ = 0;  // handlers of forms called from here that have not returned
};

// Shows the hourglass while it lives, then the pointer that was there before.
class HourglassPointer {
 public:
  explicit HourglassPointer(Screen& screen) : screen_(screen), before_(screen.mousePointer()) {
    screen_.setMousePointer(MousePointer::Hourglass);
  }
  HourglassPointer(const HourglassPointer&) = delete;
  HourglassPointer& operator=(const HourglassPointer&) = delete;
  ~HourglassPointer() { screen_.setMousePointer(before_); }

 private:
  Screen& screen_;
  MousePointer before_;
};

}  // namespace pelorin
