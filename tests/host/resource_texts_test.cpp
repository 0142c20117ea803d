// The texts that a host answers by number.
#include "host/core/resource_texts.h"

#include <gtest/gtest.h>

namespace pelorin::host {
namespace {

TEST(ResourceTexts, EveryTextThatTheComponentAsksForIsThere) {
  for (const std::int32_t id : {1675, 1677, 1821, 1843, 2161, 2835, 3553, 3575}) {
    EXPECT_NE(resourceText(id), "Text " + std::to_string(id));
    EXPECT_FALSE(resourceText(id).empty()) << id;
  }
}

TEST(ResourceTexts, AnUnknownNumberIsNamed) {
  EXPECT_EQ(resourceText(42), "Text 42");
}

std::string put(const std::string& pattern, const std::vector<std::string>& texts) {
  return substitute(pattern, texts);
}

TEST(Substitution, EachNumberStandsForItsText) {
  EXPECT_EQ(put("%1 of %2, again %1", {"one", "two"}), "one of two, again one");
  EXPECT_EQ(put("%9", {"1", "2", "3", "4", "5", "6", "7", "8", "nine"}), "nine");
}

TEST(Substitution, ATextThatIsNotGivenLeavesNothing) {
  EXPECT_EQ(put("a%3b", {"one"}), "ab");
}

TEST(Substitution, WhatWasPutInIsNotSearchedAgain) {
  EXPECT_EQ(put("%1", {"%2", "two"}), "%2");
}

TEST(Substitution, OtherPercentSignsStay) {
  EXPECT_EQ(put("100% %0 %x %", {"one"}), "100% %0 %x %");
  EXPECT_EQ(put("50%% of %1", {"it"}), "50% of it");
}

}  // namespace
}  // namespace pelorin::host
