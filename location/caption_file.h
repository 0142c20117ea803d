// Edited captions, kept as the text of a small settings file:
//
//   [85]
//   Version=1.0.0
//   cmdMain(2)=&Hilfe
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelorin {

class CaptionFile {
 public:
  // Lines that are not understood are kept as they are.
  explicit CaptionFile(std::string_view text = {});

  // Names are found without regard to case; the first of several counts.
  std::optional<std::string> value(std::int16_t form, std::string_view name) const;
  // Line breaks and other control characters in the value become blanks.
  void setValue(std::int16_t form, std::string_view name, std::string_view value);
  void remove(std::int16_t form, std::string_view name);

  // Lines end with CR LF.
  std::string text() const;

 private:
  using ConstLine = std::vector<std::string>::const_iterator;

  // The lines below the form's heading; both ends are lines_.end() when there is no heading.
  std::pair<ConstLine, ConstLine> section(std::int16_t form) const;
  ConstLine find(std::int16_t form, std::string_view name) const;

  std::vector<std::string> lines_;
};

}  // namespace pelorin
