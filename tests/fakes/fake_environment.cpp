#include "tests/fakes/fake_environment.h"

#include "base/run_time_error.h"

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
  requireReadable(path, found != files.end());
  return found->second;
}

Picture FakeEnvironment::readPicture(const std::string& path) const {
  const auto found = pictures.find(path);
  requireReadable(path, found != pictures.end());
  return found->second;
}

void FakeEnvironment::requireReadable(const std::string& path, bool found) const {
  if (unreadable.contains(path)) throw RunTimeError(75, "Path/File access error: " + path);
  if (!found) throw RunTimeError(53, "File not found: " + path);
}

void FakeEnvironment::updateFile(const std::string& path, const ContentChange& change) {
  const std::string content = change(files.contains(path) ? readFile(path) : std::string());
  if (duringUpdate) duringUpdate(path);
  if (!canWrite || unreadable.contains(path)) {
    throw RunTimeError(75, "Path/File access error: " + path);
  }
  files[path] = content;
}

}  // namespace pelorin::test
