#include "site/text_order.h"

#include "site/letters.h"

namespace pelorin::site {

namespace {

std::string_view withoutBlanksAtTheEnd(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

template <class Value>
int order(Value left, Value right) {
  return left == right ? 0 : (left < right ? -1 : 1);
}

enum class Rank { End, Blank, Sign, Digit, Letter };

Rank rankOf(char32_t base) {
  if (base == 0) return Rank::End;
  if (base <= U' ') return Rank::Blank;
  if (base >= U'0' && base <= U'9') return Rank::Digit;
  const bool letter = (base >= U'a' && base <= U'z') || base > 0xBF;
  return letter ? Rank::Letter : Rank::Sign;
}

int compareBases(char32_t left, char32_t right) {
  const int byRank = order(rankOf(left), rankOf(right));
  return byRank != 0 ? byRank : order(left, right);
}

}  // namespace

int compareTexts(std::string_view left, std::string_view right) {
  LetterReader first(withoutBlanksAtTheEnd(left));
  LetterReader second(withoutBlanksAtTheEnd(right));
  int byAccent = 0;
  for (;;) {
    const Letter one = first.next();
    const Letter other = second.next();
    if (const int byBase = compareBases(one.base, other.base)) return byBase;
    if (byAccent == 0) byAccent = order(one.accent, other.accent);
    if (one.base == 0) return byAccent;
  }
}

}  // namespace pelorin::site
