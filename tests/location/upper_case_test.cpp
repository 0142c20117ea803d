// Capitals of texts in UTF-8.
#include "location/upper_case.h"

#include <gtest/gtest.h>

namespace pelorin::test {
namespace {

TEST(UpperCase, Latin) {
  EXPECT_EQ(upperCase("Server-1 az{`"), "SERVER-1 AZ{`");
  EXPECT_EQ(upperCase("äöüéàñçøþß÷ÿ"), "ÄÖÜÉÀÑÇØÞß÷Ÿ");
  EXPECT_EQ(upperCase("łódź čšž ęąř"), "ŁÓDŹ ČŠŽ ĘĄŘ");
  EXPECT_EQ(upperCase("ı"), "ı");
}

TEST(UpperCase, GreekAndCyrillic) {
  EXPECT_EQ(upperCase("κόσμος ήώύ"), "ΚΌΣΜΟΣ ΉΏΎ");
  EXPECT_EQ(upperCase("сервер ёї ґ"), "СЕРВЕР ЁЇ Ґ");
}

TEST(UpperCase, CapitalsAndOtherScriptsStay) {
  EXPECT_EQ(upperCase("ÄŁΣЖ 東京 😀"), "ÄŁΣЖ 東京 😀");
  EXPECT_EQ(upperCase(""), "");
}

TEST(UpperCase, WhatIsNoUtf8Stays) {
  EXPECT_EQ(upperCase("a\xC3"), "A\xC3");
  EXPECT_EQ(upperCase("\xC3z"), "\xC3Z");
  EXPECT_EQ(upperCase("\x80\xFF\xC0\xA1"), "\x80\xFF\xC0\xA1");
}

}  // namespace
}  // namespace pelorin::test
