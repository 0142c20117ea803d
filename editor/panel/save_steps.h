// The steps of a save that all action panels share. Each panel takes them in its own order, which
// operators see in the order of the messages, and the database in the order of the statements.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "common/already_reported.h"
#include "editor/panel/editor_state.h"

namespace pelorin {

struct CheckedEvent {
  std::string text;  // as listed, five digits
  std::int32_t id;
};

namespace audit {
inline constexpr std::int16_t added = 1184;
inline constexpr std::int16_t updated = 1185;
}  // namespace audit

class SaveSteps {
 public:
  // Inserts a trigger at this location for each event; false after a reported error.
  using InsertAtLocation =
      std::function<bool(const std::string& locationText, const std::vector<CheckedEvent>& events)>;

  virtual const EditorState& state() const noexcept = 0;

  // Both are false after telling the operator what is missing.
  virtual bool ValidateTriggerLocation() = 0;
  virtual bool eventChosen() = 0;

  // One trigger is going to be written: the edited one, of this location and event.
  virtual void planUpdate() = 0;
  virtual std::string locationText() const = 0;
  virtual std::int32_t eventId() const = 0;

  // Goes through the listed locations with the checked events. The first failure ends the save.
  virtual void insertAtEachLocation(const InsertAtLocation& insert) = 0;

  // Counts a trigger as written; announce() then tells the host's audit of it.
  virtual void triggerWritten() noexcept = 0;
  virtual void announce(const std::string& action, std::int32_t id, std::int32_t eventId,
                        std::int16_t code) = 0;

 protected:
  ~SaveSteps() = default;
};

// An inner procedure that failed has told so; the operation ends with it.
inline void require(bool done) {
  if (!done) throw AlreadyReported();
}

}  // namespace pelorin
