// The one error type of the component. It carries what an operator's report needs: a number, a
// description, and the source line of the call that failed (0 when unknown).
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace pelorin {

class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(std::int32_t number, const std::string& description, std::uint32_t line = 0)
      : std::runtime_error(description), number_(number), line_(line) {}

  std::int32_t number() const noexcept { return number_; }
  std::uint32_t line() const noexcept { return line_; }
  std::string description() const { return what(); }

  // Keeps the first known line: the innermost call knows best.
  void setLineIfUnknown(std::uint32_t line) noexcept {
    if (line_ == 0) line_ = line;
  }

 private:
  std::int32_t number_;
  std::uint32_t line_;
};

// Numbers that callers test for or that operators know from other tools.
namespace error_number {
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t internalError = 51;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidPropertyValue = 380;
inline constexpr std::int32_t lastNonFixedRow = 30015;
inline constexpr std::int32_t parentNotFound = 35601;
inline constexpr std::int32_t keyNotUnique = 35602;
}  // namespace error_number

}  // namespace pelorin
