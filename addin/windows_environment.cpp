#include "addin/windows_environment.h"

#include <windows.h>

#include <array>

#include "addin/files.h"
#include "addin/module.h"
#include "addin/picture_file.h"
#include "addin/private_profile.h"
#include "win32/text/utf16.h"

namespace pelorin {

std::string WindowsEnvironment::componentFolder() const {
  const std::wstring path = ownPath();
  return toUtf8(std::wstring_view(path).substr(0, path.find_last_of(L'\\')));
}

std::string WindowsEnvironment::dateTimeText() const {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  std::array<wchar_t, 128> date{};
  std::array<wchar_t, 128> time{};
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date.data(),
                  static_cast<int>(date.size()), nullptr);
  GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &now, nullptr, time.data(),
                  static_cast<int>(time.size()));
  return toUtf8(date.data()) + " " + toUtf8(time.data());
}

bool WindowsEnvironment::appendLine(const std::string& path, const std::string& line) noexcept {
  try {
    return files::append(path, line + "\r\n");
  } catch (const std::exception&) {
    return false;
  }
}

std::string WindowsEnvironment::privateProfileString(const std::string& section,
                                                     const std::string& key,
                                                     const std::string& fallback, unsigned capacity,
                                                     const std::string& file) const {
  return readPrivateProfile({section, key, fallback, file}, capacity);
}

std::string WindowsEnvironment::readFile(const std::string& path) const {
  return files::read(path);
}

std::uint64_t WindowsEnvironment::milliseconds() const noexcept {
  return GetTickCount64();
}

void WindowsEnvironment::updateFile(const std::string& path, const ContentChange& change) {
  files::update(path, change);
}

Picture WindowsEnvironment::readPicture(const std::string& path) const {
  return readPictureFile(path);
}

}  // namespace pelorin
