// Text taken apart into letters without case, with their accents beside them.
#pragma once

#include <string_view>

namespace pelorin::site {

struct Letter {
  char32_t base = 0;  // lower case; 0 at the end of the text
  unsigned accent = 0;
};

// Latin, Greek and Cyrillic letters; ligatures and the sharp s come as the two letters that they
// stand for. Every other character is its own base.
class LetterReader {
 public:
  explicit LetterReader(std::string_view utf8) : rest_(utf8) {}

  Letter next();

 private:
  Letter nextBase();
  char32_t peekCharacter(std::size_t& bytes) const;

  std::string_view rest_;
  char32_t second_ = 0;  // of a character that stands for two letters
};

}  // namespace pelorin::site
