// Texts between UTF-8 and ODBC's 16 bits.
#include "host/odbc/odbc_text.h"

#include <gtest/gtest.h>

namespace pelorin::host {
namespace {

std::string thereAndBack(const std::string& text) {
  const std::vector<SQLWCHAR> wide = wideText(text);
  return utf8Text(wide.data(), wide.size() - 1);
}

TEST(OdbcText, EveryLengthOfSequenceComesBackUnchanged) {
  const std::string text = "plain, \xC3\xA4, \xE2\x82\xAC, \xF0\x9D\x84\x9E";
  EXPECT_EQ(thereAndBack(text), text);
}

TEST(OdbcText, WideTextEndsWithZero) {
  EXPECT_EQ(wideText("a"), (std::vector<SQLWCHAR>{u'a', 0}));
  EXPECT_EQ(wideText(""), std::vector<SQLWCHAR>{0});
}

TEST(OdbcText, ACharacterBeyondTheFirstPlaneTakesTwoUnits) {
  EXPECT_EQ(wideText("\xF0\x9D\x84\x9E"), (std::vector<SQLWCHAR>{0xD834, 0xDD1E, 0}));
}

}  // namespace
}  // namespace pelorin::host
