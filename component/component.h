// The component as a whole: its shared services, the event catalogue and the three windows, each of
// which exists at most once, and how they reach each other.
#pragma once

#include <memory>
#include <string>

#include "catalog/event_catalogue.h"
#include "common/form_links.h"
#include "common/module1.h"
#include "editor/frm_trigger_action.h"
#include "location/f_location.h"
#include "summary/frm_ta_summary.h"

namespace pelorin {

class Component {
 public:
  Component(Screen& screen, Environment& environment);
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;
  // Unloads every open window.
  ~Component();

  Module1& module() noexcept { return module_; }

  // Shows the summary, owned by `owner` (0: by nobody), when the operator may use the component;
  // else says that he may not. The mouse pointer is the default one afterwards, also after an
  // error.
  void RaiseForm(WindowHandle owner);

 private:
  bool permitted();
  void refuse();
  void showSummary(WindowHandle owner);
  void showEditor(const EditorRequest& request, WindowHandle owner);
  void showPicker(LocationTarget& parent, const std::string& mode);
  void reloadSummary();

  // Shows the form, which retires from `place` when it is unloaded.
  template <class FormType>
  void present(std::unique_ptr<FormType>& place, WindowHandle owner);

  Module1 module_;
  EventCatalogue catalogue_;
  std::unique_ptr<frmTASummary> summary_;
  std::unique_ptr<frmTriggerAction> editor_;
  std::unique_ptr<FLocation> picker_;
};

}  // namespace pelorin
