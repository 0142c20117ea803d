#include "addin/dll/files.h"

#include <windows.h>

#include <array>

#include "addin/dll/handle.h"
#include "controls/run_time_error.h"
#include "win32/text/utf16.h"

namespace pelorin::files {

namespace {

constexpr std::int32_t fileNotFound = 53;
constexpr std::int32_t fileAccess = 75;
constexpr DWORD anyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Beyond the classic limit only the form without interpretation is accepted.
std::wstring fileName(const std::string& path) {
  const std::wstring name = toWide(path);
  const bool hasDrive = name.size() > 2 && name[1] == L':';
  return name.size() >= MAX_PATH && hasDrive ? L"\\\\?\\" + name : name;
}

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

}  // namespace

bool append(const std::string& path, const std::string& bytes) {
  return write(open(fileName(path), FILE_APPEND_DATA, anyShare, OPEN_ALWAYS), bytes);
}

std::string read(const std::string& path) {
  const Handle file = open(fileName(path), GENERIC_READ, anyShare, OPEN_EXISTING);
  std::string bytes;
  if (!file || !readAll(file, bytes)) throw RunTimeError(fileNotFound, "File not found");
  return bytes;
}

void replace(const std::string& path, const std::string& bytes) {
  const std::wstring name = fileName(path);
  const std::wstring fresh = fileName(path + ".new");
  const bool written = write(open(fresh, GENERIC_WRITE, 0, CREATE_ALWAYS), bytes);
  if (written && MoveFileExW(fresh.c_str(), name.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
    return;
  }
  DeleteFileW(fresh.c_str());
  throw RunTimeError(fileAccess, "Path/File access error");
}

}  // namespace pelorin::files
