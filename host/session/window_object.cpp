#include "host/session/window_object.h"

#include <array>

#include "win32/text/utf16.h"

namespace pelorin::host {

const WindowObject::Member WindowObject::members[2] = {
    {L"Caption", &WindowObject::caption},
    {L"hWnd", &WindowObject::handle},
};

Variant WindowObject::caption(const MemberCall&) {
  std::array<wchar_t, 256> text{};
  const int length = GetWindowTextW(window_, text.data(), static_cast<int>(text.size()));
  return Variant::text(toUtf8({text.data(), static_cast<std::size_t>(length)}));
}

// As wide as a pointer is here: 64-bit handles are handed over whole.
Variant WindowObject::handle(const MemberCall&) {
  return variantOf(static_cast<std::int64_t>(reinterpret_cast<INT_PTR>(window_)));
}

}  // namespace pelorin::host
