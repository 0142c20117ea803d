// Dialog keys (Tab, mnemonics, Enter, Escape) inside a message loop that is not ours: key messages
// meant for our windows are exchanged for a private one when the loop takes them.
#pragma once

#include "win32/views/handles.h"

namespace pelorin {

// For the calling thread, as long as this lives.
class KeyboardHook {
 public:
  KeyboardHook() noexcept;

 private:
  Hook hook_;
};

}  // namespace pelorin
