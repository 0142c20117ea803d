#include "host/odbc/odbc_text.h"

#include <cstdint>
#include <span>

namespace pelorin::host {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t firstSurrogate = 0xD800;
constexpr char32_t firstLowSurrogate = 0xDC00;
constexpr char32_t afterSurrogates = 0xE000;
constexpr char32_t firstSupplementary = 0x10000;
constexpr char32_t lastCodePoint = 0x10FFFF;

std::uint8_t byteAt(std::string_view text, std::size_t at) {
  return static_cast<std::uint8_t>(text[at]);
}

// How many bytes follow a lead byte; -1 for one that cannot lead.
int continuationCount(std::uint8_t lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead < 0xE0) return 1;
  if (lead >= 0xE0 && lead < 0xF0) return 2;
  if (lead >= 0xF0 && lead < 0xF5) return 3;
  return -1;
}

bool isOverlongOrForbidden(char32_t point, int count) {
  constexpr char32_t smallest[] = {0, 0x80, 0x800, firstSupplementary};
  const bool surrogate = point >= firstSurrogate && point < afterSurrogates;
  return point < smallest[count] || surrogate || point > lastCodePoint;
}

// Reads one code point and moves `at` past it.
char32_t decode(std::string_view text, std::size_t& at) {
  const std::uint8_t lead = byteAt(text, at++);
  const int count = continuationCount(lead);
  if (count <= 0) return count == 0 ? lead : replacement;
  char32_t point = lead & (0x3F >> count);
  for (int i = 0; i < count; ++i) {
    if (at >= text.size() || (byteAt(text, at) & 0xC0) != 0x80) return replacement;
    point = (point << 6) | (byteAt(text, at++) & 0x3F);
  }
  return isOverlongOrForbidden(point, count) ? replacement : point;
}

void encode(char32_t point, std::string& text) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
  if (point < 0x80) {
    text += static_cast<char>(point);
  } else if (point < 0x800) {
    text += static_cast<char>(0xC0 | (point >> 6));
    tail(0);
  } else if (point < firstSupplementary) {
    text += static_cast<char>(0xE0 | (point >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (point >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

char32_t decode(std::span<const SQLWCHAR> text, std::size_t& at) {
  const char32_t unit = text[at++];
  if (unit < firstSurrogate || unit >= afterSurrogates) return unit;
  const bool pair = unit < firstLowSurrogate && at < text.size() && text[at] >= firstLowSurrogate &&
                    text[at] < afterSurrogates;
  if (!pair) return replacement;
  return firstSupplementary + ((unit - firstSurrogate) << 10) + (text[at++] - firstLowSurrogate);
}

}  // namespace

std::vector<SQLWCHAR> wideText(std::string_view text) {
  std::vector<SQLWCHAR> result;
  result.reserve(text.size() + 1);
  for (std::size_t at = 0; at < text.size();) {
    const char32_t point = decode(text, at);
    if (point < firstSupplementary) {
      result.push_back(static_cast<SQLWCHAR>(point));
    } else {
      const char32_t offset = point - firstSupplementary;
      result.push_back(static_cast<SQLWCHAR>(firstSurrogate + (offset >> 10)));
      result.push_back(static_cast<SQLWCHAR>(firstLowSurrogate + (offset & 0x3FF)));
    }
  }
  result.push_back(0);
  return result;
}

std::string utf8Text(const SQLWCHAR* text, std::size_t length) {
  const std::span<const SQLWCHAR> units(text, length);
  std::string result;
  result.reserve(length);
  for (std::size_t at = 0; at < length;) encode(decode(units, at), result);
  return result;
}

}  // namespace pelorin::host
