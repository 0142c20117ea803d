// Owner of a SAFEARRAY, and access to the VARIANTs in one.
#pragma once

#include <ole2.h>

#include <span>
#include <utility>

#include "win32/com/com_error.h"

namespace pelorin {

class SafeArray {
 public:
  SafeArray() = default;
  explicit SafeArray(SAFEARRAY* array) noexcept : array_(array) {}
  SafeArray(const SafeArray&) = delete;
  SafeArray(SafeArray&& other) noexcept : array_(std::exchange(other.array_, nullptr)) {}
  SafeArray& operator=(const SafeArray&) = delete;
  SafeArray& operator=(SafeArray&& other) noexcept {
    SafeArray taken(std::move(other));
    std::swap(array_, taken.array_);
    return *this;
  }
  ~SafeArray() {
    if (array_ != nullptr) SafeArrayDestroy(array_);
  }

  SAFEARRAY* get() const noexcept { return array_; }
  SAFEARRAY* release() noexcept { return std::exchange(array_, nullptr); }

 private:
  SAFEARRAY* array_ = nullptr;
};

// How many elements dimension `dimension` (from 1, as the functions count) has.
inline std::size_t extentOf(SAFEARRAY* array, UINT dimension) {
  LONG lower = 0;
  LONG upper = 0;
  check(SafeArrayGetLBound(array, dimension, &lower));
  check(SafeArrayGetUBound(array, dimension, &upper));
  return upper < lower ? 0 : static_cast<std::size_t>(upper - lower) + 1;
}

// Locks an array of `Element`s while it lives. The elements lie with the first index running
// fastest.
template <class Element>
class ArrayAccess {
 public:
  explicit ArrayAccess(SAFEARRAY* array) : array_(array) {
    std::size_t count = 1;
    for (UINT dimension = 1; dimension <= SafeArrayGetDim(array); ++dimension) {
      count *= extentOf(array, dimension);
    }
    void* data = nullptr;
    check(SafeArrayAccessData(array, &data));
    elements_ = std::span(static_cast<Element*>(data), count);
  }
  ArrayAccess(const ArrayAccess&) = delete;
  ArrayAccess& operator=(const ArrayAccess&) = delete;
  ~ArrayAccess() { SafeArrayUnaccessData(array_); }

  std::span<Element> elements() const noexcept { return elements_; }

 private:
  SAFEARRAY* array_;
  std::span<Element> elements_;
};

}  // namespace pelorin
