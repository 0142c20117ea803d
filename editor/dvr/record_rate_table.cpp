#include "editor/dvr/record_rate_table.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "base/run_time_error.h"

namespace pelorin {

namespace {

// One decimal, halves away from zero, without a leading zero; right-aligned in eight characters.
std::string rateText(double rate) {
  constexpr std::size_t width = 8;
  const long tenths = std::lround(rate * 10);
  const std::string whole = tenths < 10 ? std::string() : std::to_string(tenths / 10);
  std::string text = whole + '.' + std::to_string(tenths % 10) + " ips";
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

}  // namespace

std::int16_t knownStandard(std::int32_t standard) noexcept {
  return standard >= record_standard::ntsc ? record_standard::ntsc : record_standard::pal;
}

void RecordRateTable::InitRecordRateTable() {
  rates_[record_standard::pal] = {0.8, 2, 6.25, 12.5, 25, 50};
  rates_[record_standard::ntsc] = {1, 2.5, 7.5, 15, 30, 60};
}

const RecordRateTable::Rates& RecordRateTable::ratesOf(std::int16_t standard) const {
  return rates_[static_cast<std::size_t>(knownStandard(standard))];
}

void RecordRateTable::LoadRecordRateCombo(ComboBox& combo, std::int16_t& standard) const {
  combo.clear();
  standard = knownStandard(standard);
  for (const double rate : ratesOf(standard)) combo.addItem(rateText(rate));
  combo.setListIndex(defaultIndex);
}

std::int16_t RecordRateTable::FindRecordRateIndex(std::int16_t& standard, double rate) const {
  standard = knownStandard(standard);
  const Rates& rates = ratesOf(standard);
  const auto index = std::find(rates.begin(), rates.end(), rate) - rates.begin();
  return index == std::ssize(rates) ? defaultIndex : static_cast<std::int16_t>(index);
}

double RecordRateTable::GetRecordRate(std::int16_t standard, std::int16_t rateIndex) const {
  const Rates& rates = ratesOf(standard);
  if (rateIndex < 0 || static_cast<std::size_t>(rateIndex) >= rates.size()) {
    throw RunTimeError(error_number::subscriptOutOfRange, "Subscript out of range");
  }
  return rates[static_cast<std::size_t>(rateIndex)];
}

}  // namespace pelorin
