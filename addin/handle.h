// Owner of a kernel handle.
#pragma once

#include <windows.h>

#include <utility>

namespace pelorin {

class Handle {
 public:
  explicit Handle(HANDLE handle) noexcept : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(const Handle&) = delete;
  Handle& operator=(Handle&& other) noexcept {
    Handle taken(std::move(other));
    std::swap(handle_, taken.handle_);
    return *this;
  }
  ~Handle() {
    if (*this) CloseHandle(handle_);
  }

  HANDLE get() const noexcept { return handle_; }
  explicit operator bool() const noexcept {
    return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE;
  }

 private:
  HANDLE handle_;
};

}  // namespace pelorin
