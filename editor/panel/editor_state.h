// What the parts of one editor share: its mode and the IDs it works on.
#pragma once

#include <cstdint>

namespace pelorin {

struct EditorState {
  std::int32_t m_TriggerID = 0;          // below 1: add mode
  std::int16_t m_ActionDeviceClass = 0;  // read in edit mode only
  std::int32_t m_ActionID = 0;
  bool m_bVn8HardwareSupport = false;
  // Something that the save of the edited trigger would write could not be read: what the controls
  // hold would destroy what is stored.
  bool halfRead = false;
  // The window is gone; what is still at work behind it comes to its end.
  bool closed = false;

  bool addMode() const noexcept { return m_TriggerID < 1; }
};

}  // namespace pelorin
