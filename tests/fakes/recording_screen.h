// A screen without windows: forms open and close, boxes are written to the journal ("box: ...") and
// answered from a script (else by their first button).
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/screen.h"
#include "tests/fakes/journal.h"

namespace pelorin::test {

class RecordingScreen : public Screen {
 public:
  explicit RecordingScreen(Journal& journal) : journal_(journal) {}
  RecordingScreen(const RecordingScreen&) = delete;
  RecordingScreen& operator=(const RecordingScreen&) = delete;
  ~RecordingScreen() override;

  BoxAnswer messageBox(const BoxRequest& request) override;
  MousePointer mousePointer() const override { return pointer_; }
  void setMousePointer(MousePointer pointer) override;
  WindowHandle windowOf(const Form& form) const override;
  void setHostWindow(WindowHandle window) override { hostWindow = window; }

  std::vector<BoxRequest> boxes;
  std::vector<std::string> boxTexts() const;
  std::deque<BoxAnswer> answers;
  // Runs while a box is open, as the host's message loop would.
  std::function<void(const BoxRequest&)> duringBox;
  std::vector<MousePointer> pointers;
  // "create", "present", "raise", "destroy" with the form's name.
  std::vector<std::string> windowEvents;
  std::map<std::string, WindowHandle> owners;
  // Runs before a window is made, given another owner or destroyed ("create", "own", "destroy"),
  // and before the pointer changes ("point", without a form); an error that it throws is the
  // system's.
  std::function<void(const std::string& act, Form* form)> beforeAct;
  WindowHandle hostWindow = 0;
  // The window that each form, by its name, left active when it went.
  std::map<std::string, WindowHandle> activated;

  // The form of that name that is open, or null.
  template <class FormType>
  FormType* open(const std::string& name) const {
    for (Form* form : openForms()) {
      if (form->name() == name) return dynamic_cast<FormType*>(form);
    }
    return nullptr;
  }

 protected:
  void createWindow(Form& form, WindowHandle owner) override;
  void presentWindow(Form& form) override;
  void raiseWindow(Form& form) override;
  void passActivation(Form& form, WindowHandle owner) override { activated[form.name()] = owner; }
  void destroyWindow(Form& form) override;
  void changeOwner(Form& form, WindowHandle owner) override;

 private:
  void before(const std::string& act, Form* form) const {
    if (beforeAct) beforeAct(act, form);
  }

  Journal& journal_;
  MousePointer pointer_ = MousePointer::Default;
  std::map<const Form*, WindowHandle> windows_;
  WindowHandle next_ = 0x1000;
};

}  // namespace pelorin::test
