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

TEST(OdbcText, WhatIsNotUtf8IsReplaced) {
  const std::string mark = "\xEF\xBF\xBD";
  EXPECT_EQ(thereAndBack("a\xFF"
                         "b"),
            "a" + mark + "b");
  EXPECT_EQ(thereAndBack("cut \xE2\x82"), "cut " + mark);
  EXPECT_EQ(thereAndBack("\xED\xA0\x80"), mark);     // half of a pair
  EXPECT_EQ(thereAndBack("\xC0\xAF"), mark + mark);  // longer than it has to be
}

TEST(OdbcText, HalfOfAPairAloneIsReplaced) {
  const std::vector<SQLWCHAR> wide{u'a', 0xD834, u'b', 0xDD1E};
  EXPECT_EQ(utf8Text(wide.data(), wide.size()),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

}  // namespace
}  // namespace pelorin::host
