// Owner of a BSTR.
#pragma once

#include <ole2.h>

#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "win32/text/utf16.h"

namespace pelorin {

// The characters of a BSTR, NULs included; a null one is empty.
inline std::wstring_view viewOf(BSTR text) noexcept {
  return text == nullptr ? std::wstring_view() : std::wstring_view(text, SysStringLen(text));
}

class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (text_ == nullptr) throw std::bad_alloc();
  }
  explicit Bstr(std::string_view utf8) : Bstr(std::wstring_view(toWide(utf8))) {}
  Bstr(const Bstr&) = delete;
  Bstr(Bstr&& other) noexcept : text_(other.release()) {}
  Bstr& operator=(const Bstr&) = delete;
  Bstr& operator=(Bstr&& other) noexcept {
    Bstr taken(std::move(other));
    std::swap(text_, taken.text_);
    return *this;
  }
  ~Bstr() { SysFreeString(text_); }

  BSTR get() const noexcept { return text_; }
  std::wstring_view view() const noexcept { return viewOf(text_); }
  BSTR release() noexcept { return std::exchange(text_, nullptr); }
  // For results: frees what is held.
  BSTR* put() noexcept {
    *this = Bstr();
    return &text_;
  }

 private:
  BSTR text_ = nullptr;
};

}  // namespace pelorin
