// What the component takes from the machine it runs on, handed in so that a test can hold it.
#pragma once

#include <string>

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
  // The bytes of a file; error 53 when it is missing or cannot be read.
  virtual std::string readFile(const std::string& path) const = 0;
  // Replaces the whole content of a file, which is created when missing; error 75 when it cannot be
  // written, and then the old content stands.
  virtual void writeFile(const std::string& path, const std::string& bytes) = 0;
};

}  // namespace pelorin
