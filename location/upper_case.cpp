#include "location/upper_case.h"

#include <algorithm>

namespace pelorin {

namespace {

// Letters whose capitals lie at a fixed distance, or in pairs of capital and small letter.
struct CapitalRange {
  char32_t first;
  char32_t last;
  int distance;  // 0: pairs
  bool oddIsSmall;
};

constexpr CapitalRange capitalRanges[] = {
    {U'a', U'z', -0x20, false},     {0x00E0, 0x00F6, -0x20, false}, {0x00F8, 0x00FE, -0x20, false},
    {0x00FF, 0x00FF, 0x79, false},  {0x0100, 0x012F, 0, true},      {0x0132, 0x0137, 0, true},
    {0x0139, 0x0148, 0, false},     {0x014A, 0x0177, 0, true},      {0x0179, 0x017E, 0, false},
    {0x03AC, 0x03AC, -0x26, false}, {0x03AD, 0x03AF, -0x25, false}, {0x03B1, 0x03C1, -0x20, false},
    {0x03C2, 0x03C2, -0x1F, false}, {0x03C3, 0x03CB, -0x20, false}, {0x03CC, 0x03CC, -0x40, false},
    {0x03CD, 0x03CE, -0x3F, false}, {0x0430, 0x044F, -0x20, false}, {0x0450, 0x045F, -0x50, false},
    {0x0490, 0x04BF, 0, true},
};

char32_t capital(char32_t letter) {
  const auto* range = std::find_if(
      std::begin(capitalRanges), std::end(capitalRanges),
      [letter](const CapitalRange& r) { return letter >= r.first && letter <= r.last; });
  if (range == std::end(capitalRanges)) return letter;
  if (range->distance == 0) return (letter % 2 == 1) == range->oddIsSmall ? letter - 1 : letter;
  return letter + static_cast<char32_t>(range->distance);
}

bool continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Every letter with a capital in the table is one or two bytes long, and so is its capital.
bool startsTwoBytes(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  return lead >= 0xC2 && lead <= 0xDF && at + 1 < text.size() && continues(text[at + 1]);
}

}  // namespace

std::string upperCase(std::string_view utf8) {
  std::string result(utf8);
  for (std::size_t at = 0; at < result.size(); ++at) {
    const auto lead = static_cast<unsigned char>(result[at]);
    if (lead < 0x80) {
      result[at] = static_cast<char>(capital(lead));
    } else if (startsTwoBytes(result, at)) {
      const auto next = static_cast<unsigned char>(result[at + 1]);
      const char32_t letter = capital((lead & 0x1FU) << 6U | (next & 0x3FU));
      result[at] = static_cast<char>(0xC0U | letter >> 6U);
      result[++at] = static_cast<char>(0x80U | (letter & 0x3FU));
    }
  }
  return result;
}

}  // namespace pelorin
