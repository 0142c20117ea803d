// Keys of list items and tree nodes, and names of fields, are compared without regard to (ASCII)
// case.
#pragma once

#include <string>
#include <string_view>

namespace pelorin {

bool equalNoCase(std::string_view left, std::string_view right) noexcept;
std::string lowerCase(std::string_view text);

struct NoCaseHash {
  using is_transparent = void;
  // Not noexcept on purpose: the standard library then keeps the hash with each key instead of
  // computing it again for every neighbour it passes.
  std::size_t operator()(std::string_view text) const;
};

struct NoCaseEqual {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const noexcept {
    return equalNoCase(left, right);
  }
};

}  // namespace pelorin
