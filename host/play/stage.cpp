#include "host/play/stage.h"

#include <utility>

#include "driver/picture.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

std::wstring madeFolder(const std::string& folder) {
  std::wstring path = fullPath(toWide(folder));
  const int result = SHCreateDirectoryExW(nullptr, path.c_str(), nullptr);
  if (result != ERROR_SUCCESS && result != ERROR_ALREADY_EXISTS && result != ERROR_FILE_EXISTS) {
    throw driver::DriverError("cannot make the folder " + toUtf8(path));
  }
  return path;
}

}  // namespace

Stage::Stage(const driver::UiCalls& ui, HostSession& session, HWND mainWindow,
             const std::string& folder, std::string suffix, Tell tell)
    : ui_(ui),
      session_(session),
      mainWindow_(mainWindow),
      folder_(madeFolder(folder)),
      suffix_(std::move(suffix)),
      tell_(std::move(tell)) {}

void Stage::step(const std::string& text) {
  tell_(std::to_string(++steps_) + ". " + text);
}

void Stage::picture(HWND window, const std::string& name) const {
  driver::savePicture(window, folder_ + L"\\" + toWide(name + suffix_) + L".png");
}

}  // namespace pelorin::host
