// Writes the triggers of one save of the DVR panel: a trigger row that points to an action row.
#pragma once

#include <string>
#include <vector>

#include "common/module1.h"
#include "editor/dvr/dvr_action_store.h"
#include "editor/panel/arguments.h"
#include "editor/panel/save_steps.h"

namespace pelorin {

class DvrSave {
 public:
  // `values` are the panel's as they were when the save began.
  DvrSave(Module1& module, SaveSteps& steps, Arguments values);

  // False after telling the operator what is missing.
  bool update();
  void insert();

 private:
  bool insertAt(const std::string& locationText, const std::vector<CheckedEvent>& events);

  Module1& module_;
  SaveSteps& steps_;
  DvrActionStore actions_;
  Arguments values_;
};

}  // namespace pelorin
