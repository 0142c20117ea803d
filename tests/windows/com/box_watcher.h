// Reads the component's message boxes and answers them with Enter, as an operator would, while it
// lives. Boxes of other processes on the display are seen, too.
#pragma once

#include <windows.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace pelorin::test {

struct SeenBox {
  std::string text;
  HWND owner = nullptr;
};

class BoxWatcher {
 public:
  // `process` 0 watches every process.
  explicit BoxWatcher(DWORD process = GetCurrentProcessId());
  BoxWatcher(const BoxWatcher&) = delete;
  BoxWatcher& operator=(const BoxWatcher&) = delete;
  ~BoxWatcher();

  std::vector<SeenBox> boxes() const;
  std::vector<std::string> texts() const;

 private:
  void watch();
  void answerOpenBox();

  DWORD process_;
  mutable std::mutex mutex_;
  std::condition_variable ended_;
  bool ending_ = false;
  std::vector<SeenBox> boxes_;
  HWND answered_ = nullptr;
  std::thread thread_;
};

}  // namespace pelorin::test
