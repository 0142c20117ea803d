// Which of a series of acts fail. Acts are counted from 1.
#pragma once

#include <ostream>
#include <string>

namespace pelorin::test {

enum class Lasting {
  Once,        // only that act, as after a moment's disturbance
  FromThenOn,  // that act and all after it, as when something is gone for good
};

inline const char* nameOf(Lasting lasting) {
  return lasting == Lasting::Once ? "Once" : "FromThenOn";
}

// For tests made for both.
inline constexpr auto lastingName = [](const auto& param) -> std::string {
  return nameOf(param.param);
};

inline void PrintTo(Lasting lasting, std::ostream* out) {
  *out << nameOf(lasting);
}

class Faults {
 public:
  // Counts anew; the n-th act from now on fails, 0 lets none fail.
  void fail(int number, Lasting lasting = Lasting::Once) noexcept {
    acts_ = 0;
    failing_ = number;
    lasting_ = lasting;
  }
  // Counts an act and says whether it fails.
  bool nextFails() noexcept {
    ++acts_;
    return happened() && (lasting_ == Lasting::FromThenOn || acts_ == failing_);
  }
  // Since `fail`.
  int acts() const noexcept { return acts_; }
  bool happened() const noexcept { return failing_ > 0 && acts_ >= failing_; }

 private:
  int acts_ = 0;
  int failing_ = 0;
  Lasting lasting_ = Lasting::Once;
};

}  // namespace pelorin::test
