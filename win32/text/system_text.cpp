#include "win32/text/system_text.h"

#include <array>
#include <string_view>

#include "win32/text/utf16.h"

namespace pelorin {

std::string systemText(DWORD code) {
  std::array<wchar_t, 512> buffer{};
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
      nullptr, code, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  std::wstring_view text(buffer.data(), length);
  while (!text.empty() && text.back() <= L' ') text.remove_suffix(1);
  return toUtf8(text);
}

}  // namespace pelorin
