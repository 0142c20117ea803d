// A machine in memory: a folder, a clock that stands still, a log, settings files.
#pragma once

#include <map>
#include <set>
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
  std::map<std::string, Picture> pictures;                 // path -> picture
  std::set<std::string> unreadable;                        // paths of files that are there
  std::uint64_t now = 0;                                   // milliseconds
  // Runs before the new content stands.
  std::function<void(const std::string& path)> duringUpdate;

  std::string componentFolder() const override { return folder; }
  std::string dateTimeText() const override { return dateTime; }
  bool appendLine(const std::string& path, const std::string& line) noexcept override;
  std::string privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, unsigned capacity,
                                   const std::string& file) const override;
  std::string readFile(const std::string& path) const override;
  void updateFile(const std::string& path, const ContentChange& change) override;
  Picture readPicture(const std::string& path) const override;
  std::uint64_t milliseconds() const noexcept override { return now; }

 private:
  void requireReadable(const std::string& path, bool found) const;
};

}  // namespace pelorin::test
