#include "win32/views/shortened_text.h"

#include "win32/views/windows_api.h"

namespace pelorin {

namespace {

constexpr wchar_t ellipsis = L'\x2026';

// No character is cut in two.
std::wstring bothEnds(const std::wstring& text, std::size_t kept) {
  std::size_t head = (kept + 1) / 2;
  std::size_t tail = kept / 2;
  if (head > 0 && IS_HIGH_SURROGATE(text[head - 1])) --head;
  if (tail > 0 && IS_LOW_SURROGATE(text[text.size() - tail])) --tail;
  return text.substr(0, head) + ellipsis + text.substr(text.size() - tail);
}

}  // namespace

std::wstring shortenedInMiddle(const std::wstring& text, int width, const TextWidth& widthOf) {
  if (widthOf(text) <= width) return text;
  std::size_t fits = 0;
  std::size_t tooMany = text.size();
  while (tooMany - fits > 1) {
    const std::size_t kept = fits + (tooMany - fits) / 2;
    (widthOf(bothEnds(text, kept)) <= width ? fits : tooMany) = kept;
  }
  return bothEnds(text, fits);
}

}  // namespace pelorin
