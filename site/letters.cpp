#include "site/letters.h"

#include <array>
#include <utility>

#include "base/utf.h"

namespace pelorin::site {

namespace {

// Latin letters with accents, 32 in a row from U+00C0 on: each one's base, and its accent as a
// letter from 'a' (none) on, in the order in which a server puts accents. A base of '.' is no
// letter.
struct LatinRow {
  std::string_view bases;
  std::string_view accents;
};
constexpr char32_t firstLatin = 0xC0;
constexpr std::array<LatinRow, 6> latinRows{{
    {"aaaaaaaceeeeiiiidnooooo.ouuuuyts", "cbdiejalcbdecbdepicbdieaocbdebaa"},
    {"aaaaaaaceeeeiiiidnooooo.ouuuuyty", "cbdiejalcbdecbdepicbdieaocbdebae"},
    {"aaaaaaccccccccddddeeeeeeeeeegggg", "hhggkkbbddnnffffoohhggnnkkffddgg"},
    {"gggghhhhiiiiiiiiiiiijjkkqlllllll", "nnllddooiihhggkknpaaddllpbbllffp"},
    {"lllnnnnnnnnnoooooooorrrrrrssssss", "poobbllffppphhggmmaabbllffbbddll"},
    {"ssttttttuuuuuuuuuuuuwwyyyzzzzzzs", "ffllffooiihhggjjmmkkddddebbnnffa"},
}};

struct Accent {
  enum : unsigned {
    None,
    Acute,
    Grave,
    Circumflex,
    Diaeresis,
    Caron,
    Breve,
    Macron,
    Tilde,
    Ring,
    Ogonek,
    Cedilla,
    DoubleAcute,
    Dot,
    Other = 15
  };
};

struct CombiningMark {
  char32_t code;
  unsigned accent;
};
constexpr std::array<CombiningMark, 13> combiningMarks{{{0x300, Accent::Grave},
                                                        {0x301, Accent::Acute},
                                                        {0x302, Accent::Circumflex},
                                                        {0x303, Accent::Tilde},
                                                        {0x304, Accent::Macron},
                                                        {0x306, Accent::Breve},
                                                        {0x307, Accent::Dot},
                                                        {0x308, Accent::Diaeresis},
                                                        {0x30A, Accent::Ring},
                                                        {0x30B, Accent::DoubleAcute},
                                                        {0x30C, Accent::Caron},
                                                        {0x327, Accent::Cedilla},
                                                        {0x328, Accent::Ogonek}}};

struct LetterPair {
  char32_t code;
  char32_t second;
};
constexpr std::array<LetterPair, 9> secondLetters{{{0xC6, 'e'},
                                                   {0xE6, 'e'},
                                                   {0xDE, 'h'},
                                                   {0xFE, 'h'},
                                                   {0xDF, 's'},
                                                   {0x152, 'e'},
                                                   {0x153, 'e'},
                                                   {0x132, 'j'},
                                                   {0x133, 'j'}}};

struct Accented {
  char32_t code = 0;
  Letter letter;
};
constexpr std::array<Accented, 18> greekWithAccents{{{0x386, {0x3B1, Accent::Acute}},
                                                     {0x388, {0x3B5, Accent::Acute}},
                                                     {0x389, {0x3B7, Accent::Acute}},
                                                     {0x38A, {0x3B9, Accent::Acute}},
                                                     {0x38C, {0x3BF, Accent::Acute}},
                                                     {0x38E, {0x3C5, Accent::Acute}},
                                                     {0x38F, {0x3C9, Accent::Acute}},
                                                     {0x3AA, {0x3B9, Accent::Diaeresis}},
                                                     {0x3AB, {0x3C5, Accent::Diaeresis}},
                                                     {0x3AC, {0x3B1, Accent::Acute}},
                                                     {0x3AD, {0x3B5, Accent::Acute}},
                                                     {0x3AE, {0x3B7, Accent::Acute}},
                                                     {0x3AF, {0x3B9, Accent::Acute}},
                                                     {0x3CA, {0x3B9, Accent::Diaeresis}},
                                                     {0x3CB, {0x3C5, Accent::Diaeresis}},
                                                     {0x3CC, {0x3BF, Accent::Acute}},
                                                     {0x3CD, {0x3C5, Accent::Acute}},
                                                     {0x3CE, {0x3C9, Accent::Acute}}}};
constexpr char32_t finalSigma = 0x3C2;
constexpr char32_t sigma = 0x3C3;

bool isBetween(char32_t code, char32_t first, char32_t last) {
  return code >= first && code <= last;
}

Letter latinLetter(char32_t code) {
  const LatinRow& row = latinRows[(code - firstLatin) / 32];
  const std::size_t place = (code - firstLatin) % 32;
  if (row.bases[place] == '.') return {code, Accent::None};
  return {static_cast<char32_t>(row.bases[place]), static_cast<unsigned>(row.accents[place] - 'a')};
}

Letter greekLetter(char32_t code) {
  for (const Accented& accented : greekWithAccents) {
    if (accented.code == code) return accented.letter;
  }
  if (code == finalSigma) return {sigma, Accent::None};
  return {isBetween(code, 0x391, 0x3A9) ? code + 0x20 : code, Accent::None};
}

Letter cyrillicLetter(char32_t code) {
  if (code == 0x401 || code == 0x451) return {0x435, Accent::Diaeresis};
  if (code < 0x410) return {code + 0x50, Accent::None};
  if (code < 0x430) return {code + 0x20, Accent::None};
  return {code >= 0x460 ? code | 1U : code, Accent::None};
}

Letter letterOf(char32_t code) {
  constexpr char32_t fullWidth = 0xFEE0;
  if (isBetween(code, 0xFF01, 0xFF5E)) code -= fullWidth;
  if (isBetween(code, 'A', 'Z')) return {code + 0x20, Accent::None};
  if (isBetween(code, firstLatin, 0x17F)) return latinLetter(code);
  if (isBetween(code, 0x386, 0x3CE)) return greekLetter(code);
  if (isBetween(code, 0x400, 0x481)) return cyrillicLetter(code);
  return {code, Accent::None};
}

bool isMark(char32_t code) {
  return isBetween(code, 0x300, 0x36F);
}

unsigned accentOf(char32_t code) {
  for (const CombiningMark& mark : combiningMarks) {
    if (mark.code == code) return mark.accent;
  }
  return Accent::Other;
}

char32_t secondLetterOf(char32_t code) {
  for (const LetterPair& pair : secondLetters) {
    if (pair.code == code) return pair.second;
  }
  return 0;
}

}  // namespace

char32_t LetterReader::peekCharacter(std::size_t& bytes) const {
  bytes = 0;
  if (rest_.empty()) return 0;
  std::string_view rest = rest_;
  const char32_t code = takeCharacter(rest);
  bytes = rest_.size() - rest.size();
  return code;
}

Letter LetterReader::nextBase() {
  if (second_ != 0) return {std::exchange(second_, 0), Accent::None};
  std::size_t bytes = 0;
  const char32_t code = peekCharacter(bytes);
  rest_.remove_prefix(bytes);
  constexpr char32_t noEnd = 1;
  if (bytes != 0 && code == 0) return {noEnd, Accent::None};
  second_ = secondLetterOf(code);
  return letterOf(code);
}

Letter LetterReader::next() {
  Letter letter = nextBase();
  std::size_t bytes = 0;
  while (second_ == 0 && letter.base != 0 && isMark(peekCharacter(bytes))) {
    constexpr unsigned moreThanOne = 16;
    letter.accent = letter.accent * moreThanOne + accentOf(peekCharacter(bytes));
    rest_.remove_prefix(bytes);
  }
  return letter;
}

}  // namespace pelorin::site
