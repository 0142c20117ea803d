#include "host/window/choose_file.h"

#include "host/session/data_source.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

std::string chooseDatabaseFile(HWND owner, const DataSource& current) {
  constexpr std::size_t longestPath = 32768;
  std::wstring path = current.isEmbedded() ? toWide(current.name()) : std::wstring();
  path.resize(longestPath);
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = L"Site databases (*.site)\0*.site\0All files\0*.*\0";
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrTitle = L"Choose a site database, or name a new one";
  dialog.lpstrDefExt = L"site";
  dialog.Flags = OFN_CREATEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  return GetOpenFileNameW(&dialog) ? toUtf8(path.c_str()) : std::string();
}

}  // namespace pelorin::host
