// Which inputs and relays of a controller's expansion boards are listed, and with which picture.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace pelorin {

// A controller's panel set-up, as far as it says what is fitted.
struct PanelSetup {
  std::int32_t nxinputs = 0;
  bool ef_reb64 = false;
  std::array<bool, 8> ef_reb{};  // ef_reb1 is the first
};

// The picture of a listed expansion input or relay; none when it is not fitted, or when the
// controller has no set-up.
std::optional<int> expansionInputImage(const std::optional<PanelSetup>& setup,
                                       std::int32_t inputIndex);
std::optional<int> expansionRelayImage(const std::optional<PanelSetup>& setup,
                                       std::int32_t outputIndex);

}  // namespace pelorin
