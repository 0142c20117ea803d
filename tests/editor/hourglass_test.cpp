// What works shows the hourglass and then leaves the pointer that was there before.
#include "editor/cctv/cctv_panel.h"
#include "editor/dvr/dvr_panel.h"
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::Each;
using ::testing::IsEmpty;
using ::testing::Not;

class HourglassTest : public EditorTest {
 protected:
  HourglassTest() {
    database->onStatement = [this](const std::string&) { seen.push_back(screen.mousePointer()); };
  }
  // Every statement of the act ran under the hourglass, which is gone afterwards.
  void expectHourglass() {
    EXPECT_THAT(seen, Not(IsEmpty()));
    EXPECT_THAT(seen, Each(MousePointer::Hourglass));
    EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
    seen.clear();
  }

  std::vector<MousePointer> seen;
};

TEST_F(HourglassTest, OpeningInEitherMode) {
  answerDvrTrigger(8, 101, 300, device_class::dvr);
  answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
  openEditor();
  expectHourglass();
  editor->unload();
  editDvr();
  expectHourglass();
}

TEST_F(HourglassTest, TickingACategory) {
  openEditor();
  seen.clear();
  tickFilter(1);
  expectHourglass();
}

TEST_F(HourglassTest, ChoosingASwitcherOrACamera) {
  openEditor();
  chooseClass(device_class::cctv);
  seen.clear();
  combo("cmbCCTVSwitchers").userSelect(1);
  expectHourglass();
  combo("cmbCCTVSwitchers").userSelect(0);
  seen.clear();
  combo("cmbCCTVCameras").userSelect(1);
  expectHourglass();
}

TEST_F(HourglassTest, ChoosingARecorderOrItsCamera) {
  openEditor();
  chooseClass(device_class::dvr);
  seen.clear();
  combo("cmbDVRUnit").userSelect(1);
  expectHourglass();
  combo("cmbDVRUnit").userSelect(0);
  seen.clear();
  combo("cmbDVRCamera").userSelect(1);
  expectHourglass();
}

TEST_F(HourglassTest, LoadingAPanelAlone) {
  TabControl tabs{noParent, "SSTab1", {}, {"&Trigger", "&Action"}};
  CctvPanel cctv{module, catalogue, tabs.page(1)};
  cctv.load(0);
  expectHourglass();
  DvrPanel dvr{module, tabs.page(1)};
  dvr.load(0);
  expectHourglass();
}

TEST_F(HourglassTest, AnActInsideAnotherLeavesTheHourglass) {
  openEditor();
  screen.setMousePointer(MousePointer::Hourglass);
  tickFilter(1);
  EXPECT_EQ(screen.mousePointer(), MousePointer::Hourglass);
  screen.setMousePointer(MousePointer::Default);
}

TEST_F(HourglassTest, AFailureLeavesNone) {
  database->fail("select Name, [Index] from CCTV_Cameras where SwitcherId =12 order by [index]");
  openEditor();
  chooseClass(device_class::cctv);
  combo("cmbCCTVSwitchers").userSelect(1);
  EXPECT_FALSE(screen.boxes.empty());
  EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
}

TEST_F(HourglassTest, ApplyShowsNone) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  seen.clear();
  button("cmdApply").userClick();
  EXPECT_THAT(seen, Not(IsEmpty()));
  EXPECT_THAT(seen, Each(MousePointer::Default));
}

TEST_F(HourglassTest, OkShowsOneWhileItSaves) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  seen.clear();
  button("cmdOK").userClick();
  expectHourglass();
}

}  // namespace
}  // namespace pelorin::test
