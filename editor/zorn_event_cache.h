// The controller family's event definitions, read once per opening of the editor, and their rows in
// the event lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "common/module1.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"

namespace pelorin {

class ZornEventCache {
 public:
  explicit ZornEventCache(Module1& module) noexcept : module_(module) {}

  // False when an error ended it; the events read before stay.
  bool ZornLoadEventCache();
  // Adds the category's events to the combo, and those that are not shown yet to the end of the
  // list.
  void ZornDisplayFilteredEvents(ListView& events, ComboBox& combo, std::int32_t category);
  void ZornUnDisplayFilteredEvents(ListView& events, std::int32_t category);

  // Column "Type" of a row; empty for an unknown type.
  static std::string ZornEventTypeText(std::int32_t zornEventType);

 private:
  struct Event {
    std::int32_t category;
    std::int32_t ZornEventType;
    std::int32_t EventID;
    std::string description;
    bool displayed;
  };

  using Tags = std::unordered_set<std::string>;

  void readEvents();
  void ZornRemoveDisplayItem(ListView& events, const Tags& eventIds);

  Module1& module_;
  std::vector<Event> m_ZornEventCache;
};

}  // namespace pelorin
