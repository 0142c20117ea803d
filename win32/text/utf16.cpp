#include "win32/text/utf16.h"

#include <array>
#include <cstdint>

namespace pelorin {

static_assert(sizeof(wchar_t) == 2);

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t firstSupplementary = 0x10000;

struct Decoded {
  char32_t code;
  std::size_t bytes;
};

// Lead byte below which no sequence of that length starts, by number of following bytes.
struct SequenceKind {
  std::uint8_t mask;
  std::uint8_t lead;
  std::size_t following;
  char32_t smallest;
};
constexpr std::array<SequenceKind, 3> sequenceKinds{
    {{0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, firstSupplementary}}};

Decoded decodeSequence(std::string_view text, const SequenceKind& kind) {
  if (text.size() <= kind.following) return {replacement, 1};
  char32_t code = static_cast<std::uint8_t>(text.front()) & static_cast<std::uint8_t>(~kind.mask);
  for (std::size_t i = 1; i <= kind.following; ++i) {
    const auto byte = static_cast<std::uint8_t>(text[i]);
    if ((byte & 0xC0) != 0x80) return {replacement, 1};
    code = code << 6 | (byte & 0x3F);
  }
  if (code < kind.smallest || code > 0x10FFFF) return {replacement, 1};
  return {code, kind.following + 1};
}

Decoded decode(std::string_view text) {
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

void appendFollowing(std::string& text, char32_t code, int shift) {
  for (; shift >= 0; shift -= 6) appendByte(text, 0x80 | ((code >> shift) & 0x3F));
}

void encode(std::string& text, char32_t code) {
  if (code < 0x80) {
    appendByte(text, code);
  } else if (code < 0x800) {
    appendByte(text, 0xC0 | code >> 6);
    appendFollowing(text, code, 0);
  } else if (code < firstSupplementary) {
    appendByte(text, 0xE0 | code >> 12);
    appendFollowing(text, code, 6);
  } else {
    appendByte(text, 0xF0 | code >> 18);
    appendFollowing(text, code, 12);
  }
}

bool isHighSurrogate(wchar_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(wchar_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::wstring toWide(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = decode(text);
    text.remove_prefix(next.bytes);
    if (next.code < firstSupplementary) {
      wide.push_back(static_cast<wchar_t>(next.code));
    } else {
      const char32_t offset = next.code - firstSupplementary;
      wide.push_back(static_cast<wchar_t>(0xD800 + (offset >> 10)));
      wide.push_back(static_cast<wchar_t>(0xDC00 + (offset & 0x3FF)));
    }
  }
  return wide;
}

std::string toUtf8(std::wstring_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t code = text[i];
    if (isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      code = firstSupplementary + ((code - 0xD800) << 10) + (text[++i] - char32_t{0xDC00});
    }
    encode(utf8, code);
  }
  return utf8;
}

}  // namespace pelorin
