#include "tests/fakes/fake_environment.h"

#include "controls/run_time_error.h"

namespace pelorin::test {

bool FakeEnvironment::appendLine(const std::string& path, const std::string& line) noexcept {
  if (canWrite) lines.emplace_back(path, line);
  return canWrite;
}

std::string FakeEnvironment::privateProfileString(const std::string& section,
                                                  const std::string& key,
                                                  const std::string& fallback, unsigned capacity,
                                                  const std::string& file) const {
  const auto found = settings.find(file + "|" + section + "|" + key);
  return (found == settings.end() ? fallback : found->second).substr(0, capacity - 1);
}

std::string FakeEnvironment::readFile(const std::string& path) const {
  const auto found = files.find(path);
  if (found == files.end()) throw RunTimeError(53, "File not found");
  return found->second;
}

void FakeEnvironment::writeFile(const std::string& path, const std::string& bytes) {
  if (!canWrite) throw RunTimeError(75, "Path/File access error");
  files[path] = bytes;
}

}  // namespace pelorin::test
