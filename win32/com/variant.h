// Owner of a VARIANT. It is a VARIANT and nothing more, so that an array of them is an array of
// VARIANTs.
#pragma once

#include <ole2.h>

#include <cstdint>
#include <string_view>

#include "base/value.h"
#include "win32/com/com_ptr.h"

namespace pelorin {

class Variant : public VARIANT {
 public:
  Variant() noexcept : VARIANT{} {}
  // References are copied as references.
  Variant(const Variant& other);
  Variant(Variant&& other) noexcept;
  Variant& operator=(const Variant& other);
  Variant& operator=(Variant&& other) noexcept;
  ~Variant();

  static Variant int16(std::int16_t number) noexcept;
  static Variant int32(std::int32_t number) noexcept;
  static Variant real(double number) noexcept;
  static Variant text(std::string_view utf8);
  static Variant object(IDispatch* object) noexcept;
  static Variant null() noexcept;
  // Stands for an argument that is left out.
  static Variant missing() noexcept;
  // VT_BYREF|VT_I4: the called side may write to `number`.
  static Variant reference(LONG& number) noexcept;

  // The value for somebody else to own.
  VARIANT release() noexcept;
  // For results: clears what is held.
  VARIANT* put() noexcept;

  // The object in it, whether given as automation object or as plain interface, by value or by
  // reference; null when there is none.
  ComPtr<IDispatch> asObject() const;
};

// A copy of its own of what `variant` holds or refers to.
Variant resolved(const VARIANT& variant);

// What a database or a host sent. Decimals and currencies with a fraction become reals, as do whole
// numbers beyond 64 bits; a float becomes the real with its shortest text; bytes become "0x..".
// Error 13 for objects and other arrays.
Value valueOf(const VARIANT& variant);

}  // namespace pelorin
