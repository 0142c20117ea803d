// Keeps re-entrant handlers out while a control is filled.
#pragma once

namespace pelorin {

// Sets a flag while it lives, also when an error ends the filling.
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
