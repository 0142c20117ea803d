#include "addin/private_profile.h"

#include <windows.h>

#include <optional>
#include <vector>

#include "win32/text/utf16.h"

namespace pelorin {

namespace {

// Nothing when a character has no place in the code page.
std::optional<std::string> ansi(const std::string& utf8) {
  const std::wstring wide = toWide(utf8);
  if (wide.empty()) return std::string();
  const bool everyCharacter = GetACP() == CP_UTF8;
  const DWORD flags = everyCharacter ? 0 : WC_NO_BEST_FIT_CHARS;
  BOOL replaced = FALSE;
  BOOL* const lost = everyCharacter ? nullptr : &replaced;
  const int length = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(CP_ACP, flags, wide.data(), length, nullptr, 0, nullptr, lost);
  if (size <= 0 || replaced != FALSE) return std::nullopt;
  std::string text(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, flags, wide.data(), length, text.data(), size, nullptr, lost);
  return text;
}

std::string utf8OfAnsi(const char* text, DWORD length) {
  if (length == 0) return {};
  const int count = static_cast<int>(length);
  std::wstring wide(length, L'\0');
  const int size = MultiByteToWideChar(CP_ACP, 0, text, count, wide.data(), count);
  wide.resize(static_cast<std::size_t>(size));
  return toUtf8(wide);
}

std::string readWide(const ProfileQuery& query, unsigned capacity) {
  std::vector<wchar_t> buffer(capacity);
  const DWORD length = GetPrivateProfileStringW(
      toWide(query.section).c_str(), toWide(query.key).c_str(), toWide(query.fallback).c_str(),
      buffer.data(), capacity, toWide(query.file).c_str());
  return toUtf8(std::wstring_view(buffer.data(), length));
}

}  // namespace

std::string readPrivateProfile(const ProfileQuery& query, unsigned capacity) {
  const auto section = ansi(query.section);
  const auto key = ansi(query.key);
  const auto fallback = ansi(query.fallback);
  const auto file = ansi(query.file);
  if (!section || !key || !fallback || !file) return readWide(query, capacity);
  std::vector<char> buffer(capacity);
  const DWORD length =
      GetPrivateProfileStringA(section->c_str(), key->c_str(), fallback->c_str(), buffer.data(),
                               static_cast<DWORD>(buffer.size()), file->c_str());
  return utf8OfAnsi(buffer.data(), length);
}

}  // namespace pelorin
