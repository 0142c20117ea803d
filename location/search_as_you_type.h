// Whether a tree's own search is running: the operator types the beginning of a node's text, and
// the tree goes there. Not every platform tells, so that the time since the last character decides.
#pragma once

#include <cstdint>
#include <optional>

namespace pelorin {

class SearchAsYouType {
 public:
  // Times are readings of one clock, in milliseconds.
  void typed(std::uint64_t now) noexcept { last_ = now; }
  void end() noexcept { last_.reset(); }
  bool running(std::uint64_t now) const noexcept { return last_ && now - *last_ <= longestPause; }

 private:
  // Trees give up after two seconds at the latest. Better too long than too short: a blank that
  // only searches does no harm.
  static constexpr std::uint64_t longestPause = 2000;

  std::optional<std::uint64_t> last_;
};

}  // namespace pelorin
