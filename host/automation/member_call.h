// One call of an object's member by a late-bound client.
#pragma once

#include <cstdint>
#include <string>

#include "base/value.h"
#include "win32/com/com_ptr.h"
#include "win32/com/variant.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

class MemberCall {
 public:
  MemberCall(WORD flags, const DISPPARAMS& parameters) : flags_(flags), parameters_(parameters) {}

  bool isPut() const noexcept {
    return (flags_ & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  }

  // Arguments in the order in which they were written, from 0; the value of a put is the last one.
  std::size_t count() const noexcept { return parameters_.cArgs; }
  bool has(std::size_t index) const noexcept;
  // Error 449 when it was left out.
  const VARIANT& argument(std::size_t index) const;
  const VARIANT& putValue() const { return argument(count() - 1); }

  Value value(std::size_t index) const { return valueOf(argument(index)); }
  std::string text(std::size_t index) const { return toText(value(index)); }
  std::int32_t int32(std::size_t index) const { return toInt32(value(index)); }
  std::int32_t int32Or(std::size_t index, std::int32_t fallback) const {
    return has(index) ? int32(index) : fallback;
  }
  // Null when there is none.
  ComPtr<IDispatch> object(std::size_t index) const;

 private:
  WORD flags_;
  const DISPPARAMS& parameters_;
};

// Follows a reference to another variant.
const VARIANT& target(const VARIANT& variant) noexcept;

ComPtr<IDispatch> objectOf(const VARIANT& variant);

// A database value as an automation client sees it: whole numbers of 32 bits as such.
Variant variantOf(const Value& value);
Variant boolean(bool truth);

}  // namespace pelorin::host
