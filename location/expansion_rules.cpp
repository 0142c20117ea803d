#include "location/expansion_rules.h"

namespace pelorin {

namespace {

constexpr int expansionInput = 42;
constexpr int relayOfOwnBoard = 35;
constexpr int relayOfLargeBoard = 36;
constexpr std::int64_t relaysOnBoard = 8;

}  // namespace

std::optional<int> expansionInputImage(const std::optional<PanelSetup>& setup,
                                       std::int32_t inputIndex) {
  if (!setup || inputIndex > setup->nxinputs) return std::nullopt;
  return expansionInput;
}

std::optional<int> expansionRelayImage(const std::optional<PanelSetup>& setup,
                                       std::int32_t outputIndex) {
  if (!setup) return std::nullopt;
  if (setup->ef_reb64) return relayOfLargeBoard;
  const std::int64_t board = (std::int64_t{outputIndex} - 1) / relaysOnBoard + 1;
  if (board < 1 || board > static_cast<std::int64_t>(setup->ef_reb.size())) return std::nullopt;
  if (!setup->ef_reb[static_cast<std::size_t>(board - 1)]) return std::nullopt;
  return relayOfOwnBoard;
}

}  // namespace pelorin
