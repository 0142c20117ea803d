// Record rates in images per second, by standard (0 PAL, 1 NTSC) and rate index (0 to 5).
#pragma once

#include <array>
#include <cstdint>

#include "controls/item_lists.h"

namespace pelorin {

namespace record_standard {
inline constexpr std::int16_t pal = 0;
inline constexpr std::int16_t ntsc = 1;
}  // namespace record_standard

// NTSC for anything above it, PAL for anything below it.
std::int16_t knownStandard(std::int32_t standard) noexcept;

// Every operation clamps the standard it is given.
class RecordRateTable {
 public:
  static constexpr std::int16_t defaultIndex = 3;

  // Until then every rate is 0.
  void InitRecordRateTable();
  // The six rates of the standard; selects the default one.
  void LoadRecordRateCombo(ComboBox& combo, std::int16_t& standard) const;
  // The first index with exactly this rate, else the default one.
  std::int16_t FindRecordRateIndex(std::int16_t& standard, double rate) const;
  // Error 9 when there is no such index.
  double GetRecordRate(std::int16_t standard, std::int16_t rateIndex) const;

 private:
  using Rates = std::array<double, 6>;
  const Rates& ratesOf(std::int16_t standard) const;

  std::array<Rates, 2> rates_{};
};

}  // namespace pelorin
