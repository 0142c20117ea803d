// The built PelorinHost.exe as a process, and files for it.
#pragma once

#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::test {

// In the temporary folder; removed at both ends.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& name);
  TemporaryFile(const std::string& name, const std::string& content);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  const std::string& path() const { return path_; }
  std::string content() const;

 private:
  std::string path_;
};

struct Ended {
  DWORD code = 0;
  std::string output;  // standard output and error
};

class Program {
 public:
  explicit Program(const std::string& arguments);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  // A window of the process with that class and, when given, that title.
  HWND waitForWindow(const wchar_t* className, const char* title = nullptr) const;
  // All texts of labels in a window.
  static std::string labels(HWND window);
  Ended waitForEnd();

 private:
  PROCESS_INFORMATION process_{};
  HANDLE read_ = nullptr;
};

}  // namespace pelorin::test
