// The reference host with its windows on a thread of its own, over a fresh demonstration site (or
// what a test puts in ODBC's place) and the built DLL; the test's thread plays the operator.
#pragma once

#include <exception>
#include <future>
#include <optional>
#include <string>
#include <thread>

#include "driver/ui_calls.h"
#include "host/core/options.h"
#include "host/window/main_window.h"

namespace pelorin::test {

class HostOnThread {
 public:
  explicit HostOnThread(host::OpenConnection odbc = {});
  HostOnThread(const HostOnThread&) = delete;
  HostOnThread& operator=(const HostOnThread&) = delete;
  ~HostOnThread();

  const driver::UiCalls& ui() const { return *ui_; }
  host::HostSession& session() const { return window_->session(); }
  HWND window() const { return handle_; }
  const std::string& file() const { return file_; }
  // For another host over the same site.
  host::Options options() const;

 private:
  void live(std::promise<void>& ready);

  host::OpenConnection odbc_;
  std::string file_;
  std::optional<driver::UiCalls> ui_;
  std::unique_ptr<host::MainWindow> window_;
  HWND handle_ = nullptr;
  std::thread thread_;
};

}  // namespace pelorin::test
