#include "tests/windows/journey/host_on_thread.h"

#include <array>

#include "host/window/message_loop.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::test {

namespace {

std::wstring environment(const wchar_t* name) {
  std::array<wchar_t, 1024> value{};
  GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  return value.data();
}

std::wstring freshFile() {
  static int number = 0;
  const std::wstring file = environment(L"TEMP") + L"\\PelorinJourney-" +
                            std::to_wstring(GetCurrentProcessId()) + L"-" +
                            std::to_wstring(++number) + L".site";
  DeleteFileW(file.c_str());
  return file;
}

}  // namespace

host::Options HostOnThread::options() const {
  host::Options chosen;
  chosen.database = file_;
  chosen.component = toUtf8(environment(L"PELORIN_DIST") + L"\\Pelorin.dll");
  return chosen;
}

HostOnThread::HostOnThread(host::OpenConnection odbc)
    : odbc_(std::move(odbc)), file_(toUtf8(freshFile())) {
  std::promise<void> ready;
  std::future<void> isReady = ready.get_future();
  thread_ = std::thread([this, &ready] { live(ready); });
  isReady.wait();
  if (!ui_) {
    thread_.join();
    isReady.get();
  }
}

HostOnThread::~HostOnThread() {
  ui_->post([] { PostQuitMessage(0); });
  thread_.join();
  DeleteFileW(toWide(file_).c_str());
}

void HostOnThread::live(std::promise<void>& ready) {
  OleInitialize(nullptr);
  const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&wanted);
  try {
    host::Options chosen = options();
    if (odbc_) {
      chosen.source = host::Source::OdbcDataSource;
      chosen.connectionString = "DSN=test";
    }
    window_ = std::make_unique<host::MainWindow>(
        chosen, odbc_ ? odbc_ : host::OpenConnection(host::connectOdbc));
    handle_ = window_->handle();
    ui_.emplace();
    ShowWindow(handle_, SW_SHOWNORMAL);
    ready.set_value();
    host::messageLoop(handle_);
  } catch (...) {
    ready.set_exception(std::current_exception());
  }
  ui_.reset();
  window_.reset();
  OleUninitialize();
}

}  // namespace pelorin::test
