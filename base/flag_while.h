// Keeps out what comes back while something is under way.
#pragma once

namespace pelorin {

// Sets a flag while it lives, also when an error ends what is under way.
class FlagWhile {
 public:
  explicit FlagWhile(bool& flag) noexcept : flag_(flag) { flag = true; }
  FlagWhile(const FlagWhile&) = delete;
  FlagWhile& operator=(const FlagWhile&) = delete;
  ~FlagWhile() { flag_ = false; }

 private:
  bool& flag_;
};

}  // namespace pelorin
