// The rates at which recorders record, in both standards.
#include "editor/dvr/record_rate_table.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

class RecordRateTableTest : public ::testing::Test {
 protected:
  RecordRateTableTest() { table.InitRecordRateTable(); }

  RecordRateTable table;
  ComboBox combo{noParent, "cmbDVRRecordRate", {}};
  std::int16_t pal = 0;
  std::int16_t ntsc = 1;
};

TEST_F(RecordRateTableTest, ShowsTheRatesOfPalRightAlignedWithoutALeadingZero) {
  table.LoadRecordRateCombo(combo, pal);
  EXPECT_THAT(texts(combo),
              ElementsAre("  .8 ips", " 2.0 ips", " 6.3 ips", "12.5 ips", "25.0 ips", "50.0 ips"));
}

TEST_F(RecordRateTableTest, ShowsTheRatesOfNtsc) {
  table.LoadRecordRateCombo(combo, ntsc);
  EXPECT_THAT(texts(combo),
              ElementsAre(" 1.0 ips", " 2.5 ips", " 7.5 ips", "15.0 ips", "30.0 ips", "60.0 ips"));
}

TEST_F(RecordRateTableTest, TheFourthRateIsTheDefault) {
  table.LoadRecordRateCombo(combo, pal);
  EXPECT_EQ(combo.listIndex(), 3);
}

TEST_F(RecordRateTableTest, FillingAgainStartsAnew) {
  table.LoadRecordRateCombo(combo, pal);
  table.LoadRecordRateCombo(combo, ntsc);
  EXPECT_EQ(combo.listCount(), 6);
}

TEST_F(RecordRateTableTest, AStandardAboveOneIsNtsc) {
  std::int16_t standard = 7;
  table.LoadRecordRateCombo(combo, standard);
  EXPECT_EQ(standard, 1);
  EXPECT_EQ(combo.row(5).text, "60.0 ips");
  standard = 7;
  EXPECT_EQ(table.FindRecordRateIndex(standard, 60), 5);
  EXPECT_EQ(standard, 1);
  EXPECT_EQ(table.GetRecordRate(7, 0), 1);
}

TEST_F(RecordRateTableTest, FindsARateOfItsStandardExactly) {
  EXPECT_EQ(table.FindRecordRateIndex(pal, 0.8), 0);
  EXPECT_EQ(table.FindRecordRateIndex(pal, 6.25), 2);
  EXPECT_EQ(table.FindRecordRateIndex(ntsc, 7.5), 2);
}

TEST_F(RecordRateTableTest, ARateThatIsNotInTheTableSelectsIndexThree) {
  EXPECT_EQ(table.FindRecordRateIndex(ntsc, 10), 3);
  EXPECT_EQ(table.FindRecordRateIndex(pal, 6.3), 3);
}

TEST_F(RecordRateTableTest, GivesTheTablesNumberNotTheShownOne) {
  EXPECT_EQ(table.GetRecordRate(0, 2), 6.25);
}

TEST_F(RecordRateTableTest, AnIndexOutsideIsError9) {
  EXPECT_THROW(table.GetRecordRate(0, 6), RunTimeError);
  EXPECT_THROW(table.GetRecordRate(0, -1), RunTimeError);
}

TEST_F(RecordRateTableTest, IsEmptyUntilItIsFilled) {
  EXPECT_EQ(RecordRateTable().GetRecordRate(1, 3), 0);
}

}  // namespace
}  // namespace pelorin::test
