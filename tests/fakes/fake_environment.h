// A machine in memory: a folder, a clock that stands still, a log, settings files.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "common/environment.h"

namespace pelorin::test {

class FakeEnvironment : public Environment {
 public:
  std::string folder = "C:\\Component";
  std::string dateTime = "21.11.2026 08:30:00";
  bool canWrite = true;
  std::vector<std::pair<std::string, std::string>> lines;  // path, line
  std::map<std::string, std::string> settings;             // "file|section|key" -> value
  std::map<std::string, std::string> files;                // path -> bytes

  std::string componentFolder() const override { return folder; }
  std::string dateTimeText() const override { return dateTime; }
  bool appendLine(const std::string& path, const std::string& line) noexcept override;
  std::string privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, unsigned capacity,
                                   const std::string& file) const override;
  std::string readFile(const std::string& path) const override;
  void writeFile(const std::string& path, const std::string& bytes) override;
};

}  // namespace pelorin::test
