// The arguments of one automation call in the order in which the member declares them. Script
// engines send references, variants inside variants and names; members see plain values.
#pragma once

#include <ole2.h>

#include <span>
#include <vector>

#include "win32/com/variant.h"

namespace pelorin {

// Declared type of an argument that may be of any type.
inline constexpr VARTYPE anyType = VT_VARIANT;

class CallArguments {
 public:
  // Takes the call's arguments, each converted to its declared type. On failure `position` is the
  // place of the argument at fault in `parameters`.
  HRESULT take(const DISPPARAMS& parameters, std::span<const VARTYPE> types, UINT& position);

  const Variant& operator[](std::size_t index) const { return values_[index]; }

 private:
  std::vector<Variant> values_;
};

}  // namespace pelorin
