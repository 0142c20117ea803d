// The one error type of the component. It carries what an operator's report needs: a number, a
// description, and the source line of the call that failed (0 when unknown); and whether the
// database cannot be reached any more.
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

  // Every further statement would fail the same way.
  bool connectionLost() const noexcept { return connectionLost_; }
  void setConnectionLost() noexcept { connectionLost_ = true; }

 private:
  std::int32_t number_;
  std::uint32_t line_;
  bool connectionLost_ = false;
};

// Numbers that callers test for or that operators know from other tools.
namespace error_number {
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t internalError = 51;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t pathFileAccess = 75;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidPropertyValue = 380;
inline constexpr std::int32_t invalidPicture = 481;
inline constexpr std::int32_t lastNonFixedRow = 30015;
inline constexpr std::int32_t keyNotUnique = 35602;
}  // namespace error_number

}  // namespace pelorin
