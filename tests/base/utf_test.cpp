// Texts between UTF-8 and units of 16 bits.
#include "base/utf.h"

#include <gtest/gtest.h>

namespace pelorin {
namespace {

std::u16string units(std::string_view utf8) {
  std::u16string text;
  appendUtf16(text, utf8);
  return text;
}

std::string thereAndBack(std::string_view utf8) {
  const std::u16string wide = units(utf8);
  return utf8Of(wide.data(), wide.size());
}

TEST(Utf, EveryLengthOfSequenceComesBackUnchanged) {
  const std::string text = "plain, \xC3\xA4, \xE2\x82\xAC, \xF0\x9D\x84\x9E";
  EXPECT_EQ(thereAndBack(text), text);
}

TEST(Utf, ACharacterBeyondTheFirstPlaneTakesTwoUnits) {
  EXPECT_EQ(units("\xF0\x9D\x84\x9E"), (std::u16string{0xD834, 0xDD1E}));
}

TEST(Utf, EachByteThatIsNotUtf8IsReplaced) {
  EXPECT_EQ(units("a\xFFz"), u"a\xFFFDz");
  EXPECT_EQ(units("cut \xE2\x82"), u"cut \xFFFD\xFFFD");
  EXPECT_EQ(units("\xC0\xAF"), u"\xFFFD\xFFFD") << "longer than it has to be";
  EXPECT_EQ(units("\xF4\x90\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD") << "beyond the last character";
}

TEST(Utf, HalfOfAPairAloneKeepsItsCode) {
  const std::u16string alone{u'a', 0xD834, u'b', 0xDD1E};
  EXPECT_EQ(units(utf8Of(alone.data(), alone.size())), alone);
}

}  // namespace
}  // namespace pelorin
