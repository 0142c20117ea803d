#include "addin/files.h"

#include <windows.h>

#include <array>
#include <optional>
#include <utility>

#include "addin/handle.h"
#include "addin/path_lock.h"
#include "base/run_time_error.h"
#include "win32/text/utf16.h"

namespace pelorin::files {

namespace {

constexpr DWORD anyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

Handle open(const std::wstring& name, DWORD access, DWORD share, DWORD disposition) {
  return Handle(CreateFileW(name.c_str(), access, share, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool write(const Handle& file, const std::string& bytes) {
  DWORD written = 0;
  return file && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                           nullptr) != FALSE;
}

bool readAll(const Handle& file, std::string& bytes) {
  std::array<char, 65536> block{};
  DWORD count = 0;
  while (ReadFile(file.get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr)) {
    if (count == 0) return true;
    bytes.append(block.data(), count);
  }
  return false;
}

[[noreturn]] void failAccess(const std::string& path) {
  throw RunTimeError(error_number::pathFileAccess, "Path/File access error: " + path);
}

// Nothing when the file is missing.
std::optional<std::string> readIfThere(const std::string& path) {
  const Handle file = open(nativeName(path), GENERIC_READ, anyShare, OPEN_EXISTING);
  const DWORD reason = file ? ERROR_SUCCESS : GetLastError();
  if (reason == ERROR_FILE_NOT_FOUND || reason == ERROR_PATH_NOT_FOUND) return std::nullopt;
  std::string bytes;
  if (!file || !readAll(file, bytes)) failAccess(path);
  return bytes;
}

}  // namespace

// Beyond the classic limit only the form without interpretation is accepted.
std::wstring nativeName(const std::string& path) {
  const std::wstring name = toWide(path);
  const bool hasDrive = name.size() > 2 && name[1] == L':';
  return name.size() >= MAX_PATH && hasDrive ? L"\\\\?\\" + name : name;
}

bool append(const std::string& path, const std::string& bytes) {
  return write(open(nativeName(path), FILE_APPEND_DATA, anyShare, OPEN_ALWAYS), bytes);
}

std::string read(const std::string& path) {
  std::optional<std::string> bytes = readIfThere(path);
  if (!bytes) throw RunTimeError(error_number::fileNotFound, "File not found: " + path);
  return std::move(*bytes);
}

void replace(const std::string& path, const std::string& bytes) {
  const std::wstring name = nativeName(path);
  const std::wstring fresh = nativeName(path + ".new");
  const bool written = write(open(fresh, GENERIC_WRITE, 0, CREATE_ALWAYS), bytes);
  if (written && MoveFileExW(fresh.c_str(), name.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
    return;
  }
  DeleteFileW(fresh.c_str());
  failAccess(path);
}

void update(const std::string& path, const std::function<std::string(const std::string&)>& change) {
  const PathLock lock(path);
  if (!lock) failAccess(path);
  replace(path, change(readIfThere(path).value_or(std::string())));
}

}  // namespace pelorin::files
