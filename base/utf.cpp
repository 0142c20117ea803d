#include "base/utf.h"

#include <array>
#include <cstdint>

namespace pelorin {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t lastCharacter = 0x10FFFF;

// How a sequence of more than one byte begins, and the smallest character that needs its length.
struct SequenceKind {
  std::uint8_t mask;
  std::uint8_t lead;
  std::size_t following;
  char32_t smallest;
};
constexpr std::array<SequenceKind, 3> sequenceKinds{
    {{0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, firstSupplementary}}};

struct Decoded {
  char32_t character;
  std::size_t bytes;
};

Decoded decodeSequence(std::string_view text, const SequenceKind& kind) noexcept {
  if (text.size() <= kind.following) return {replacement, 1};
  char32_t character =
      static_cast<std::uint8_t>(text.front()) & static_cast<std::uint8_t>(~kind.mask);
  for (std::size_t i = 1; i <= kind.following; ++i) {
    const auto byte = static_cast<std::uint8_t>(text[i]);
    if ((byte & 0xC0) != 0x80) return {replacement, 1};
    character = character << 6 | (byte & 0x3F);
  }
  if (character < kind.smallest || character > lastCharacter) return {replacement, 1};
  return {character, kind.following + 1};
}

Decoded decode(std::string_view text) noexcept {
  const auto lead = static_cast<std::uint8_t>(text.front());
  if (lead < 0x80) return {lead, 1};
  for (const SequenceKind& kind : sequenceKinds) {
    if ((lead & kind.mask) == kind.lead) return decodeSequence(text, kind);
  }
  return {replacement, 1};
}

void appendByte(std::string& text, char32_t byte) {
  text.push_back(static_cast<char>(static_cast<std::uint8_t>(byte)));
}

void appendFollowing(std::string& text, char32_t character, int shift) {
  for (; shift >= 0; shift -= 6) appendByte(text, 0x80 | ((character >> shift) & 0x3F));
}

}  // namespace

char32_t takeCharacter(std::string_view& utf8) noexcept {
  const Decoded next = decode(utf8);
  utf8.remove_prefix(next.bytes);
  return next.character;
}

void appendUtf8(std::string& text, char32_t character) {
  if (character < 0x80) {
    appendByte(text, character);
  } else if (character < 0x800) {
    appendByte(text, 0xC0 | character >> 6);
    appendFollowing(text, character, 0);
  } else if (character < firstSupplementary) {
    appendByte(text, 0xE0 | character >> 12);
    appendFollowing(text, character, 6);
  } else {
    appendByte(text, 0xF0 | character >> 18);
    appendFollowing(text, character, 12);
  }
}

}  // namespace pelorin
