// Typing into a text box that no window shows.
#pragma once

#include <string_view>

#include "controls/simple_controls.h"

namespace pelorin::test {

// At the end of what the box holds, key by key.
inline void typeInto(TextBox& box, std::string_view ascii) {
  for (const char letter : ascii) {
    if (box.userKey(static_cast<unsigned char>(letter))) box.userText(box.text() + letter);
  }
}

}  // namespace pelorin::test
