// Triggers at devices that are no part of the access control: recorders, their cameras, receivers
// and the points that report to them.
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::waitFor;
using testing::ElementsAre;

class DeviceLocationsJourney : public Journey {
 protected:
  HTREEITEM device(const std::vector<std::string>& below) {
    std::vector<std::string> path{" Hardware", " Interface Configuration (HEADOFFICE)"};
    path.insert(path.end(), below.begin(), below.end());
    return driver::openPath(tree, path);
  }
  void add(const std::vector<std::string>& below) {
    const int before = driver::rowCount(locations);
    driver::doubleClickNode(tree, device(below));
    waitFor(below.back(), [&] { return driver::rowCount(locations) == before + 1; });
  }
  void tryToAdd(const std::vector<std::string>& below) {
    driver::doubleClickNode(tree, device(below));
    waitFor("no location",
            [&] { return driver::textOf(control(picker, "lblLocation")) == "<None>"; });
  }
  void openTree() {
    editor = openEditor();
    checkEvents(editor, {"00003"});
    picker = openPicker(editor, "cmdAddLocation");
    tree = control(picker, "tvTree");
    locations = control(editor, "lvwLocation");
  }
  void save() {
    clickButton(control(picker, "cmdMain(1)"));
    driver::waitUntilClosed(picker);
    clickButton(control(editor, "cmdOK"));
    driver::waitUntilClosed(editor);
  }
  std::string cctv(int id, const char* column) {
    return stored("select * from CCTV_TriggerAction where TA_ID = " + std::to_string(id), column);
  }

  HWND editor = nullptr;
  HWND picker = nullptr;
  HWND tree = nullptr;
  HWND locations = nullptr;
};

TEST_F(DeviceLocationsJourney, ATriggerIsStoredAtARecorderACameraAReceiverAndAPoint) {
  const std::vector<std::string> texts{"001.DVR01 - Head office recorder",
                                       "001.DVR01.CAM01 - Lobby", "001.CSR02 - Receiver line 2",
                                       "001.ACC01.AR01.PT03 - Hold-up button"};
  openTree();
  add({"DVR", "Head office recorder"});
  add({"DVR", "Head office recorder", "Lobby"});
  add({"Central Stations", "Central Station Receiver", "Receiver line 2"});
  add({"Central Stations", "Account Management", "Jeweller Market Street", "Show room",
       "Hold-up button"});
  save();

  constexpr int firstNew = 9;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const int id = firstNew + static_cast<int>(i);
    EXPECT_EQ(cctv(id, "T_Address"), texts[i].substr(0, texts[i].find(' ')));
    EXPECT_EQ(cctv(id, "T_LocationText"), texts[i]);
    EXPECT_EQ(cctv(id, "T_EventID"), "3");
    EXPECT_GE(summaryRow("00003 - Door held open warning", cctv(id, "T_Address")), 0);
  }
  EXPECT_EQ(cctv(firstNew + static_cast<int>(texts.size()), "TA_ID"), "");
  EXPECT_EQ(audit().size(), texts.size());
}

TEST_F(DeviceLocationsJourney, FoldersAccountsAndAreasAreNoLocations) {
  openTree();
  tryToAdd({"DVR"});
  tryToAdd({"Central Stations", "Account Management", "Jeweller Market Street"});
  tryToAdd({"Central Stations", "Account Management", "Jeweller Market Street", "Show room"});
  add({"DVR", "Car park recorder"});
  EXPECT_THAT(driver::rowsOf(locations), ElementsAre(ElementsAre("001.DVR02 - Car park recorder")));
}

}  // namespace
}  // namespace pelorin::test
