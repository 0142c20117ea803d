#include "tests/windows/journey/component_log.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "win32/text/windows_api.h"

namespace pelorin::test {

namespace {

std::wstring logFile() {
  std::array<wchar_t, 1024> folder{};
  GetEnvironmentVariableW(L"PELORIN_DIST", folder.data(), static_cast<DWORD>(folder.size()));
  return std::wstring(folder.data()) + L"\\Pelorin.txt";
}

}  // namespace

ComponentLog::ComponentLog() : file_(logFile()), before_(content()) {}

ComponentLog::~ComponentLog() {
  if (before_.empty()) {
    DeleteFileW(file_.c_str());
  } else {
    std::ofstream(std::filesystem::path(file_), std::ios::binary) << before_;
  }
}

std::vector<std::string> ComponentLog::newLines() const {
  std::istringstream added(content().substr(before_.size()));
  std::vector<std::string> lines;
  for (std::string line; std::getline(added, line, '\n');) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

std::string ComponentLog::content() const {
  std::ifstream file(std::filesystem::path(file_), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace pelorin::test
