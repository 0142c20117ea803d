#include "host/core/resource_texts.h"

#include <algorithm>
#include <iterator>

namespace pelorin::host {

namespace {

struct Text {
  std::int32_t id;
  const char* text;
};

constexpr Text texts[] = {
    {1675, "Raise switcher alarm"},
    {1677, "Call camera to monitor"},
    {1821, "Acknowledge switcher alarm"},
    {1843, "Dial-up locations"},
    {2161, "<No preset>"},
    {2835, "Add"},
    {3553, "<No view group>"},
    {3575,
     "You do not have permission to use trigger actions. Ask your administrator for the right "
     "\"Pelorin - Use\"."},
};

}  // namespace

std::string resourceText(std::int32_t id) {
  const auto* found = std::find_if(std::begin(texts), std::end(texts),
                                   [id](const Text& entry) { return entry.id == id; });
  return found != std::end(texts) ? found->text : "Text " + std::to_string(id);
}

std::string substitute(std::string_view pattern, std::span<const std::string> values) {
  std::string result;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const char next = at + 1 < pattern.size() ? pattern[at + 1] : '\0';
    if (pattern[at] != '%' || !((next >= '1' && next <= '9') || next == '%')) {
      result += pattern[at];
      continue;
    }
    ++at;
    if (next == '%') {
      result += '%';
    } else if (const auto number = static_cast<std::size_t>(next - '1'); number < values.size()) {
      result += values[number];
    }
  }
  return result;
}

}  // namespace pelorin::host
