#include "host/play/play.h"

#include <array>
#include <exception>
#include <optional>
#include <thread>

#include "host/play/picture_tour.h"
#include "host/play/played_request.h"
#include "host/window/main_window.h"
#include "host/window/message_loop.h"
#include "host/window/output.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

// The name of a file in the temporary folder that does not exist yet; removed at the end.
class TemporaryDatabase {
 public:
  TemporaryDatabase() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    file_ = std::wstring(folder.data()) + L"PelorinPlay-" + std::to_wstring(GetCurrentProcessId()) +
            L".site";
    DeleteFileW(file_.c_str());
  }
  TemporaryDatabase(const TemporaryDatabase&) = delete;
  TemporaryDatabase& operator=(const TemporaryDatabase&) = delete;
  ~TemporaryDatabase() { DeleteFileW(file_.c_str()); }

  std::string path() const { return toUtf8(file_); }

 private:
  std::wstring file_;
};

int playOn(const driver::UiCalls& ui, MainWindow& window, const Options& options) noexcept {
  try {
    const bool documents = !options.picturesFolder.empty();
    const std::string suffix = documents ? "-" + std::to_string(scaled(96)) : std::string();
    Stage stage(ui, window.session(), window.handle(),
                documents ? options.picturesFolder : options.outputFolder, suffix, printLine);
    const bool own = options.source == Source::EmbeddedDatabase;
    const bool allWell = own ? playOnOwnDatabase(stage) : playOnServer(stage, options.undo);
    if (documents) makePictureTour(stage);
    return allWell ? 0 : 1;
  } catch (const std::exception& error) {
    printError(std::string("FAILED: ") + error.what());
    return 1;
  }
}

}  // namespace

int play(const Options& options) {
  const TemporaryDatabase database;
  Options own = options;
  if (own.source == Source::EmbeddedDatabase) own.database = database.path();
  MainWindow window(own);
  ShowWindow(window.handle(), SW_SHOWNORMAL);
  std::optional<driver::UiCalls> ui(std::in_place);
  std::thread player([&] {
    const int result = playOn(*ui, window, own);
    ui->post([result] { PostQuitMessage(result); });
  });
  const int result = messageLoop(window.handle());
  // The player must not wait for a thread that waits for him.
  ui.reset();
  player.join();
  return result;
}

}  // namespace pelorin::host
