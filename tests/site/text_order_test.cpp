// How a server compares and sorts texts.
#include "site/text_order.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace pelorin::site {
namespace {

// In rising order; all are different.
void expectRising(const std::vector<std::string>& texts) {
  for (std::size_t left = 0; left < texts.size(); ++left) {
    for (std::size_t right = 0; right < texts.size(); ++right) {
      const int expected = left == right ? 0 : (left < right ? -1 : 1);
      EXPECT_EQ(compareTexts(texts[left], texts[right]), expected)
          << texts[left] << " and " << texts[right];
    }
  }
}

void expectEqual(const std::string& left, const std::string& right) {
  EXPECT_EQ(compareTexts(left, right), 0) << left << " and " << right;
  EXPECT_EQ(compareTexts(right, left), 0) << right << " and " << left;
}

TEST(TextOrder, BlanksAtTheEndCountForNothingAndOthersDo) {
  expectEqual("Door", "Door  ");
  expectEqual("", "   ");
  expectRising({"", " Door", "Do or", "Door"});
}

TEST(TextOrder, CaseCountsForNothingInAnyAlphabet) {
  expectEqual("DOOR 1", "door 1");
  expectEqual("\xC3\x84\xC3\x96\xC3\x9C", "\xC3\xA4\xC3\xB6\xC3\xBC");
  expectEqual("\xC5\xBD\xC5\xB8", "\xC5\xBE\xC3\xBF");
  expectEqual("\xCE\x91\xCE\x98\xCE\x97\xCE\x9D\xCE\x91\xCE\xA3",
              "\xCE\xB1\xCE\xB8\xCE\xB7\xCE\xBD\xCE\xB1\xCF\x82");
  expectEqual("\xCE\x86", "\xCE\xAC");
  expectEqual("\xD0\x94\xD0\x92\xD0\x95\xD0\xA0\xD0\xAC",
              "\xD0\xB4\xD0\xB2\xD0\xB5\xD1\x80\xD1\x8C");
  expectEqual("\xD0\x81", "\xD1\x91");
}

TEST(TextOrder, AnAccentTellsApartWhatIsEqualOtherwise) {
  expectRising({"a", "\xC3\xA1", "\xC3\xA0", "\xC3\xA2", "\xC3\xA4", "\xC3\xA3", "\xC3\xA5", "b"});
  expectRising({"cote", "cot\xC3\xA9", "c\xC3\xB4te", "c\xC3\xB4t\xC3\xA9", "coter"});
  expectRising({"Muller", "M\xC3\xBCller", "Mullers", "N"});
}

TEST(TextOrder, AnAccentMayStandByItself) {
  expectEqual("e\xCC\x81t\xC3\xA9", "\xC3\xA9te\xCC\x81");
}

TEST(TextOrder, SomeLettersStandForTwo) {
  expectEqual(
      "Stra\xC3\x9F"
      "e",
      "STRASSE");
  expectEqual("\xC3\x86ther", "aether");
  expectRising({"od", "\xC5\x93", "of"});
}

TEST(TextOrder, SignsComeBeforeDigitsAndDigitsBeforeLetters) {
  expectRising({" x", "_x", "~x", "0", "9", "a", "Z", "\xCE\xB1", "\xD0\xB0", "\xE9\x96\x80"});
}

TEST(TextOrder, WideFormsAreThePlainOnes) {
  expectEqual("\xEF\xBC\xA1\xEF\xBC\x91", "a1");
}

TEST(TextOrder, CharactersBeyondTheFirstPlaneAndCutOnesHaveAPlace) {
  expectRising({"a", "\xF0\x9F\x9A\xAA", "\xF0\x9F\x9A\xAB"});
  EXPECT_NE(compareTexts("cut \xE2\x82", "cut"), 0);
  EXPECT_NE(compareTexts(std::string("a\0b", 3), "a"), 0);
}

}  // namespace
}  // namespace pelorin::site
