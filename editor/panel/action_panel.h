// What the form and the saver need of an action panel: the controls that say what the devices of
// one class do when a trigger fires, and how that is read from the database and written to it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "catalog/trigger_store.h"
#include "common/module1.h"
#include "controls/simple_controls.h"
#include "editor/panel/save_steps.h"

namespace pelorin {

class ActionPanel {
 public:
  // The panel's controls stand on `page`.
  ActionPanel(Module1& module, Parent page) noexcept : page_(page), module_(module) {}
  ActionPanel(const ActionPanel&) = delete;
  ActionPanel& operator=(const ActionPanel&) = delete;
  virtual ~ActionPanel() = default;

  virtual std::int32_t deviceClass() const noexcept = 0;
  // The class is always offered under this name; null: only when the database lists it, as there.
  virtual const char* ownClassName() const noexcept { return nullptr; }
  virtual Frame& frame() noexcept = 0;

  // Once, before the first load.
  virtual void prepare() {}
  // The trigger of this class with this ID. False after a reported error.
  virtual bool readTrigger(std::int32_t triggerId, TriggerData& data);
  // Fills the panel and shows the stored action, or a new one when there is none. False when
  // something of the stored action that would be saved again could not be read.
  virtual bool load(std::int32_t actionId) = 0;
  // Checks the input, then updates the edited trigger or inserts one per location and event. True
  // when the rows stand; false after a message or a report.
  virtual bool save(SaveSteps& steps) = 0;

 protected:
  Parent page_;
  Module1& module_;
};

using ActionPanels = std::vector<std::unique_ptr<ActionPanel>>;

// Null when no panel is of this class.
ActionPanel* panelOf(const ActionPanels& panels, std::int32_t deviceClass) noexcept;

}  // namespace pelorin
