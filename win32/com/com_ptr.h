// Owner of an interface pointer.
#pragma once

#include <ole2.h>

#include <utility>

namespace pelorin {

template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  // Adds a reference; a pointer that was handed over with one goes to attach().
  explicit ComPtr(Interface* pointer) noexcept : pointer_(pointer) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }
  ComPtr(const ComPtr& other) noexcept : ComPtr(other.pointer_) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(const ComPtr& other) noexcept {
    if (this != &other) *this = ComPtr(other);
    return *this;
  }
  ComPtr& operator=(ComPtr&& other) noexcept {
    ComPtr taken(std::move(other));
    std::swap(pointer_, taken.pointer_);
    return *this;
  }
  ~ComPtr() {
    if (pointer_ != nullptr) pointer_->Release();
  }

  static ComPtr attach(Interface* pointer) noexcept {
    ComPtr owner;
    owner.pointer_ = pointer;
    return owner;
  }

  Interface* get() const noexcept { return pointer_; }
  Interface* operator->() const noexcept { return pointer_; }
  explicit operator bool() const noexcept { return pointer_ != nullptr; }
  Interface* release() noexcept { return std::exchange(pointer_, nullptr); }

  // For results: lets go of what is held.
  Interface** put() noexcept {
    *this = ComPtr();
    return &pointer_;
  }
  void** putVoid() noexcept { return reinterpret_cast<void**>(put()); }

  // Null when the object does not answer to it.
  template <class Other>
  ComPtr<Other> query(const IID& id) const noexcept {
    ComPtr<Other> other;
    if (pointer_ != nullptr && FAILED(pointer_->QueryInterface(id, other.putVoid()))) {
      static_cast<void>(other.release());
    }
    return other;
  }

 private:
  Interface* pointer_ = nullptr;
};

}  // namespace pelorin
