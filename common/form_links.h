// How the windows reach each other without knowing each other; wired together by the component.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "controls/form.h"

namespace pelorin {

// What the summary sets on the editor before it shows it.
struct EditorRequest {
  std::int32_t m_TriggerID = 0;                     // below 1: add
  std::optional<std::int16_t> m_ActionDeviceClass;  // set for edit only
};

// Shows the editor owned by `owner`; an editor that is open comes to the front and keeps its
// trigger.
using ShowEditor = std::function<void(const EditorRequest& request, WindowHandle owner)>;

// Called after each successful save.
using ReloadSummary = std::function<void()>;

// The form that opened the picker: the picker writes the chosen locations straight into it.
class LocationTarget {
 public:
  LocationTarget() = default;
  LocationTarget(const LocationTarget&) = delete;
  LocationTarget& operator=(const LocationTarget&) = delete;
  virtual ~LocationTarget() = default;

  // For who may outlive the form: expires with it, and keeps nothing alive.
  std::weak_ptr<LocationTarget> whileItLives() const noexcept { return self_; }
  virtual WindowHandle locationOwner() const = 0;
  // txtLocation's Text and Tag.
  virtual void setSingleLocation(const std::string& text, const std::string& tag) = 0;
  // Adds to lvwLocation with the given key, text and tag. Error 35602 when the key is in the list.
  virtual void addLocation(const std::string& key, const std::string& text,
                           const std::string& tag) = 0;

 private:
  std::shared_ptr<LocationTarget> self_{this, [](LocationTarget*) {}};
};

// Sets Parent and Mode ("singlelocation" or "multilocation") and shows the picker.
using ShowPicker = std::function<void(LocationTarget& parent, const std::string& mode)>;

}  // namespace pelorin
