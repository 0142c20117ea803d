// Which inputs and relays of expansion boards are listed.
#include "location/expansion_rules.h"

#include <gtest/gtest.h>

#include <limits>

namespace pelorin::test {
namespace {

constexpr auto least = std::numeric_limits<std::int32_t>::min();
constexpr auto most = std::numeric_limits<std::int32_t>::max();

PanelSetup withBoard(std::size_t board) {
  PanelSetup setup;
  setup.ef_reb[board - 1] = true;
  return setup;
}

TEST(ExpansionInput, IsListedUpToTheNumberFitted) {
  PanelSetup setup;
  setup.nxinputs = 16;
  EXPECT_EQ(expansionInputImage(setup, 1), 42);
  EXPECT_EQ(expansionInputImage(setup, 16), 42);
  EXPECT_EQ(expansionInputImage(setup, 17), std::nullopt);
  EXPECT_EQ(expansionInputImage(setup, 0), 42);
  EXPECT_EQ(expansionInputImage(setup, least), 42);
  EXPECT_EQ(expansionInputImage(setup, most), std::nullopt);
}

TEST(ExpansionInput, IsNotListedWithoutSetUp) {
  EXPECT_EQ(expansionInputImage(std::nullopt, 1), std::nullopt);
}

TEST(ExpansionRelay, EveryBoardHoldsEight) {
  for (std::int32_t output = 1; output <= 64; ++output) {
    const auto board = static_cast<std::size_t>((output - 1) / 8 + 1);
    for (std::size_t fitted = 1; fitted <= 8; ++fitted) {
      const std::optional<int> expected = fitted == board ? std::optional(35) : std::nullopt;
      EXPECT_EQ(expansionRelayImage(withBoard(fitted), output), expected)
          << output << " with board " << fitted;
    }
  }
}

TEST(ExpansionRelay, OutsideTheEightBoardsIsNotListed) {
  PanelSetup setup;
  setup.ef_reb.fill(true);
  EXPECT_EQ(expansionRelayImage(setup, 65), std::nullopt);
  EXPECT_EQ(expansionRelayImage(setup, -7), std::nullopt);
  EXPECT_EQ(expansionRelayImage(setup, least), std::nullopt);
  EXPECT_EQ(expansionRelayImage(setup, most), std::nullopt);
}

TEST(ExpansionRelay, LargeBoardListsEveryOutput) {
  PanelSetup setup;
  setup.ef_reb64 = true;
  for (std::int32_t output : {least, -1, 0, 1, 64, 65, most}) {
    EXPECT_EQ(expansionRelayImage(setup, output), 36) << output;
  }
}

TEST(ExpansionRelay, IsNotListedWithoutSetUp) {
  EXPECT_EQ(expansionRelayImage(std::nullopt, 1), std::nullopt);
}

}  // namespace
}  // namespace pelorin::test
