// What the component takes from the machine it runs on, handed in so that a test can hold it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "common/picture.h"

namespace pelorin {

class Environment {
 public:
  virtual ~Environment() = default;

  // The folder of the loaded module, without a closing separator.
  virtual std::string componentFolder() const = 0;
  // Short date and long time of the user's locale.
  virtual std::string dateTimeText() const = 0;
  // Appends `line` and CR LF with one write; the file is created when missing and shared with other
  // writers. False when it cannot be written.
  virtual bool appendLine(const std::string& path, const std::string& line) noexcept = 0;
  // GetPrivateProfileStringA: the value, or `fallback` when file, section or key is missing; at
  // most `capacity` - 1 characters.
  virtual std::string privateProfileString(const std::string& section, const std::string& key,
                                           const std::string& fallback, unsigned capacity,
                                           const std::string& file) const = 0;
  // A clock that only grows.
  virtual std::uint64_t milliseconds() const noexcept = 0;

  // The bytes of a file. Error 53 when it is missing, 75 when it is there and cannot be read; both
  // name it.
  virtual std::string readFile(const std::string& path) const = 0;
  // Replaces the content of a file by what `change` makes of it (of nothing when it is missing),
  // while no other process does the same. Error 75 when it cannot be read or written; then the old
  // content stands.
  using ContentChange = std::function<std::string(const std::string& content)>;
  virtual void updateFile(const std::string& path, const ContentChange& change) = 0;
  // A bitmap file of any kind that the platform reads. Errors 53 and 75 as above, 481 when it is
  // damaged or no picture; all name it.
  virtual Picture readPicture(const std::string& path) const = 0;
};

}  // namespace pelorin
