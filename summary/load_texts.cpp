#include "summary/load_texts.h"

namespace pelorin {

const std::string& LoadTexts::trigger(std::int32_t eventId) {
  const auto [text, added] = triggers_.try_emplace(eventId);
  if (added) {
    text->second = eventNumberText(eventId) + " - " + catalogue_.GetEventDescription(eventId);
  }
  return text->second;
}

const std::string& LoadTexts::cctvAction(std::int16_t action) {
  const auto [text, added] = actions_.try_emplace(action);
  if (added) text->second = module_.GetCCTVActionName(action);
  return text->second;
}

}  // namespace pelorin
