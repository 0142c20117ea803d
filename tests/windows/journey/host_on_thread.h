// The reference host with its windows on a thread of its own, over a fresh demonstration site and
// the built DLL; the test's thread plays the operator.
#pragma once

#include <exception>
#include <future>
#include <optional>
#include <string>
#include <thread>

#include "host/driver/ui_calls.h"
#include "host/window/main_window.h"

namespace pelorin::test {

class HostOnThread {
 public:
  HostOnThread();
  HostOnThread(const HostOnThread&) = delete;
  HostOnThread& operator=(const HostOnThread&) = delete;
  ~HostOnThread();

  const host::UiCalls& ui() const { return *ui_; }
  host::HostSession& session() const { return window_->session(); }
  HWND window() const { return handle_; }
  const std::string& file() const { return file_; }

 private:
  void live(std::promise<void>& ready);

  std::string file_;
  std::optional<host::UiCalls> ui_;
  std::unique_ptr<host::MainWindow> window_;
  HWND handle_ = nullptr;
  std::thread thread_;
};

}  // namespace pelorin::test
