#include "location/caption_file.h"

#include <algorithm>
#include <utility>

#include "base/text_key.h"

namespace pelorin {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

bool isHeading(std::string_view line) {
  return trimmed(line).starts_with('[');
}

bool isHeadingOf(std::string_view line, std::int16_t form) {
  return trimmed(line) == "[" + std::to_string(form) + "]";
}

bool isNamed(std::string_view line, std::string_view name) {
  const std::size_t equals = line.find('=');
  return equals != std::string_view::npos && equalNoCase(trimmed(line.substr(0, equals)), name);
}

std::string oneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

}  // namespace

CaptionFile::CaptionFile(std::string_view text) {
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines_.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::pair<CaptionFile::ConstLine, CaptionFile::ConstLine> CaptionFile::section(
    std::int16_t form) const {
  const auto heading = std::find_if(lines_.begin(), lines_.end(), [form](const std::string& line) {
    return isHeadingOf(line, form);
  });
  if (heading == lines_.end()) return {heading, heading};
  return {heading + 1, std::find_if(heading + 1, lines_.end(), isHeading)};
}

CaptionFile::ConstLine CaptionFile::find(std::int16_t form, std::string_view name) const {
  const auto [begin, end] = section(form);
  const auto found =
      std::find_if(begin, end, [name](const std::string& line) { return isNamed(line, name); });
  return found == end ? lines_.end() : found;
}

std::optional<std::string> CaptionFile::value(std::int16_t form, std::string_view name) const {
  const auto line = find(form, name);
  if (line == lines_.end()) return std::nullopt;
  return line->substr(line->find('=') + 1);
}

void CaptionFile::setValue(std::int16_t form, std::string_view name, std::string_view value) {
  std::string line = std::string(name) + '=' + oneLine(value);
  const auto old = find(form, name);
  if (old != lines_.end()) {
    lines_[static_cast<std::size_t>(old - lines_.begin())] = std::move(line);
    return;
  }
  const auto [begin, end] = section(form);
  if (begin == lines_.end() && (lines_.empty() || !isHeadingOf(lines_.back(), form))) {
    lines_.push_back("[" + std::to_string(form) + "]");
    lines_.push_back(std::move(line));
  } else {
    lines_.insert(end, std::move(line));
  }
}

void CaptionFile::remove(std::int16_t form, std::string_view name) {
  const auto line = find(form, name);
  if (line != lines_.end()) lines_.erase(line);
}

std::string CaptionFile::text() const {
  std::string text;
  for (const std::string& line : lines_) text += line + "\r\n";
  return text;
}

}  // namespace pelorin
