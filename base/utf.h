// Texts are UTF-8 inside; Windows, COM and ODBC have them in units of 16 bits. Here alone one
// becomes the other: what is not UTF-8 becomes U+FFFD, and half of a surrogate pair that stands
// alone keeps its code, so that a name that Windows allows comes back as it was.
#pragma once

#include <string>
#include <string_view>

namespace pelorin {

inline constexpr char32_t firstSupplementary = 0x10000;

// Takes the first character off a text that is not empty.
char32_t takeCharacter(std::string_view& utf8) noexcept;
void appendUtf8(std::string& text, char32_t character);

constexpr bool isHighHalf(char32_t unit) noexcept {
  return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool isLowHalf(char32_t unit) noexcept {
  return unit >= 0xDC00 && unit < 0xE000;
}
constexpr char32_t joinedHalves(char32_t high, char32_t low) noexcept {
  return firstSupplementary + ((high - 0xD800) << 10) + (low - 0xDC00);
}
constexpr char16_t highHalf(char32_t supplementary) noexcept {
  return static_cast<char16_t>(0xD800 + ((supplementary - firstSupplementary) >> 10));
}
constexpr char16_t lowHalf(char32_t supplementary) noexcept {
  return static_cast<char16_t>(0xDC00 + ((supplementary - firstSupplementary) & 0x3FF));
}

// `Unit` is whatever type of 16 bits the called side has; `Text` holds them and has push_back.
template <class Text>
void appendUtf16(Text& text, std::string_view utf8) {
  using Unit = typename Text::value_type;
  static_assert(sizeof(Unit) == 2);
  while (!utf8.empty()) {
    const char32_t character = takeCharacter(utf8);
    if (character < firstSupplementary) {
      text.push_back(static_cast<Unit>(character));
    } else {
      text.push_back(static_cast<Unit>(highHalf(character)));
      text.push_back(static_cast<Unit>(lowHalf(character)));
    }
  }
}

template <class Unit>
std::string utf8Of(const Unit* units, std::size_t count) {
  static_assert(sizeof(Unit) == 2);
  std::string text;
  text.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const char32_t unit = units[i];
    const bool pair = isHighHalf(unit) && i + 1 < count && isLowHalf(units[i + 1]);
    appendUtf8(text, pair ? joinedHalves(unit, units[++i]) : unit);
  }
  return text;
}

}  // namespace pelorin
