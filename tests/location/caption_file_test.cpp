// The file of captions that operators edited.
#include "location/caption_file.h"

#include <gtest/gtest.h>

namespace pelorin::test {
namespace {

TEST(CaptionFile, EmptyHasNothing) {
  EXPECT_EQ(CaptionFile().value(85, "cmdMain(2)"), std::nullopt);
  EXPECT_EQ(CaptionFile().text(), "");
}

TEST(CaptionFile, ReadsByFormAndName) {
  const CaptionFile file(
      "[84]\r\ncmdMain(2)=other\r\n[85]\r\ncmdMain(2)=&Hilfe\r\nlblLocation= x \r\n");
  EXPECT_EQ(file.value(85, "cmdMain(2)"), "&Hilfe");
  EXPECT_EQ(file.value(85, "CMDMAIN(2)"), "&Hilfe");
  EXPECT_EQ(file.value(85, "lblLocation"), " x ");
  EXPECT_EQ(file.value(84, "cmdMain(2)"), "other");
  EXPECT_EQ(file.value(85, "cmdMain(1)"), std::nullopt);
  EXPECT_EQ(file.value(86, "cmdMain(2)"), std::nullopt);
}

TEST(CaptionFile, NameOfTheNextSectionBelongsToThatSection) {
  CaptionFile file("[85]\r\ncmdMain(0)=Ja\r\n[86]\r\ncmdMain(2)=other\r\n");
  EXPECT_EQ(file.value(85, "cmdMain(2)"), std::nullopt);
  file.remove(85, "cmdMain(2)");
  file.setValue(85, "cmdMain(2)", "&Hilfe");
  EXPECT_EQ(file.text(),
            "[85]\r\ncmdMain(0)=Ja\r\ncmdMain(2)=&Hilfe\r\n[86]\r\ncmdMain(2)=other\r\n");
}

TEST(CaptionFile, ByteOrderMarkAndBareLineFeedsAreUnderstood) {
  const CaptionFile file("\xEF\xBB\xBF[85]\ncmdMain(2)=a=b");
  EXPECT_EQ(file.value(85, "cmdMain(2)"), "a=b");
}

TEST(CaptionFile, WritesNewSectionsAtTheEndAndNewNamesIntoTheirSection) {
  CaptionFile file("[84]\r\nx=1\r\n[86]\r\ny=2\r\n");
  file.setValue(85, "cmdMain(2)", "&Hilfe");
  file.setValue(84, "z", "3");
  EXPECT_EQ(file.text(), "[84]\r\nx=1\r\nz=3\r\n[86]\r\ny=2\r\n[85]\r\ncmdMain(2)=&Hilfe\r\n");
}

TEST(CaptionFile, SectionThatIsEmptyAtTheEndIsUsed) {
  CaptionFile file("[85]\r\n");
  file.setValue(85, "a", "1");
  EXPECT_EQ(file.text(), "[85]\r\na=1\r\n");
}

TEST(CaptionFile, ReplacesAndRemovesAndKeepsWhatItDoesNotKnow) {
  CaptionFile file("; mine\r\n[85]\r\na=1\r\nnonsense\r\nb=2\r\n");
  file.setValue(85, "B", "two");
  file.remove(85, "a");
  file.remove(85, "c");
  EXPECT_EQ(file.text(), "; mine\r\n[85]\r\nnonsense\r\nB=two\r\n");
}

TEST(CaptionFile, ValueStaysOnOneLine) {
  CaptionFile file;
  file.setValue(85, "a", "one\r\n[86]\tx");
  EXPECT_EQ(file.text(), "[85]\r\na=one  [86] x\r\n");
}

}  // namespace
}  // namespace pelorin::test
