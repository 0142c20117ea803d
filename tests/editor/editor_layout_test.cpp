// Nothing in the editor overlaps, and every caption has its room.
#include <map>
#include <set>

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

// Generous for the fonts of the platform: captions must not be cut with a wide one.
constexpr int twipsPerCharacter = 112;

int captionWidth(const Control& control) {
  const int padding = control.kind() == ControlKind::CheckBox ? 330 : 0;
  return static_cast<int>(control.text().size()) * twipsPerCharacter + padding;
}

bool overlap(const Place& a, const Place& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

bool seenInFront(const Control& control) {
  return control.visible() && !control.covered();
}

class EditorLayoutTest : public EditorTest {
 protected:
  void openInEveryMode(const std::function<void()>& check) {
    answerCctvTrigger(5, {5, "1.2.3", 101, 11, 1, 2, 3, 33, true, 0});
    answerDvrTrigger(8, 101, 300, device_class::dvr);
    answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
    openEditor();
    for (const int action : {0, 1, 2}) {
      combo("cmbCCTVActions").setListIndex(action);
      check();
    }
    chooseClass(device_class::dvr);
    check();
    editor->unload();
    editCctv();
    check();
    editor->unload();
    editDvr();
    check();
  }
};

TEST_F(EditorLayoutTest, EveryControlStandsInsideItsContainer) {
  openInEveryMode([this] {
    for (const Control* c : editor->controls()) {
      const Place& place = c->place();
      const Size room = c->container() == nullptr
                            ? editor->client()
                            : Size{c->container()->place().width, c->container()->place().height};
      EXPECT_GE(place.left, 0) << c->name();
      EXPECT_GE(place.top, 0) << c->name();
      EXPECT_LE(place.left + place.width, room.width) << c->name();
      EXPECT_LE(place.top + place.height, room.height) << c->name();
    }
  });
}

TEST_F(EditorLayoutTest, VisibleControlsOfOnePageDoNotOverlap) {
  openInEveryMode([this] {
    const auto& all = editor->controls();
    for (std::size_t i = 0; i < all.size(); ++i) {
      for (std::size_t j = i + 1; j < all.size(); ++j) {
        if (!seenInFront(*all[i]) || !seenInFront(*all[j])) continue;
        if (all[i]->container() != all[j]->container() || all[i]->page() != all[j]->page())
          continue;
        EXPECT_FALSE(overlap(all[i]->place(), all[j]->place()))
            << all[i]->name() << " and " << all[j]->name();
      }
    }
  });
}

TEST_F(EditorLayoutTest, CaptionsHaveRoomForWideFonts) {
  openEditor();
  for (const Control* c : editor->controls()) {
    const bool captioned = c->kind() == ControlKind::Label || c->kind() == ControlKind::Button ||
                           c->kind() == ControlKind::CheckBox || c->kind() == ControlKind::Frame;
    if (!captioned) continue;
    EXPECT_GE(c->place().width, captionWidth(*c)) << c->name();
  }
}

TEST_F(EditorLayoutTest, ALabelComesDirectlyBeforeItsControl) {
  openEditor();
  const std::map<std::string, std::string> controlOf = {
      {"lblLocation", "txtLocation"},
      {"lblEvent", "cmbEvents"},
      {"lblActionDeviceClass", "cmbActionDeviceClass"},
      {"lblCCTVSwitchers", "cmbCCTVSwitchers"},
      {"lblCTCVAction", "cmbCCTVActions"},
      {"lblCCTVCamAction(0)", "cmbCCTVMonitors"},
      {"lblCCTVCamAction(1)", "cmbCCTVPresets"},
      {"lblCCTVCamAction(2)", "cmbCCTVCameras"},
      {"lblCCTVAlarm", "txtCCTVAlarm"},
      {"lblDVRUnit", "cmbDVRUnit"},
      {"lblDVRCamera", "cmbDVRCamera"},
      {"lblDVRRecordRate", "cmbDVRRecordRate"},
      {"lblDVRAlarmDuration", "txtDVRAlarmDuration"},
      {"lblDVRCameraPresets", "cmbDVRCameraPresets"},
      {"lblDVRViewGroups", "cmbDVRViewGroups"},
      {"lblCommandSet", "cmbCommandSet"}};
  const auto& all = editor->controls();
  for (std::size_t i = 0; i + 1 < all.size(); ++i) {
    if (all[i]->kind() != ControlKind::Label) continue;
    ASSERT_TRUE(controlOf.contains(all[i]->name())) << all[i]->name();
    EXPECT_EQ(all[i + 1]->name(), controlOf.at(all[i]->name()));
  }
}

TEST_F(EditorLayoutTest, ControlsHaveTheirCaptions) {
  openEditor();
  const std::map<std::string, std::string> captions = {
      {"cmdApply", "Apply"},
      {"cmdOK", "OK"},
      {"cmdCancel", "Cancel"},
      {"cmdHelp", "&Help"},
      {"lblLocation", "Location:"},
      {"cmdSingleLocation", "..."},
      {"cmdAddLocation", "&Add..."},
      {"cmdDeleteLocation", "&Delete"},
      {"cmdSelect(0)", "&Select All"},
      {"cmdSelect(1)", "D&eselect All"},
      {"fraEditOverlay", "Edit Overlay"},
      {"lblEvent", "Event:"},
      {"lblActionDeviceClass", "Device Type:"},
      {"fraCCTVAction", "CCTV Action"},
      {"fraDVRAction", "Trigger Alarm on DVR"},
      {"lblCCTVSwitchers", "Switcher:"},
      {"lblCTCVAction", "Action:"},
      {"lblCCTVCamAction(0)", "Monitor:"},
      {"lblCCTVCamAction(1)", "Preset:"},
      {"lblCCTVCamAction(2)", "Camera:"},
      {"chkCCTVDisplayViewer", "Display Viewer associated with monitor"},
      {"lblCCTVAlarm", "Alarm:"},
      {"chkCCTVAutoRTNTriggers",
       "Automatically generate RTN triggers to acknowledge alarms on switcher"},
      {"lblDVRUnit", "DVR:"},
      {"lblDVRCamera", "Camera:"},
      {"lblDVRRecordRate", "Record Rate:"},
      {"lblDVRAlarmDuration", "Alarm Duration (5-300 sec):"},
      {"lblDVRCameraPresets", "Preset:"},
      {"lblDVRViewGroups", "Optionally launch the Video Explorer window using this View Group:"},
      {"lblCommandSet", "Execute command set:"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(control<Control>(name).text(), caption) << name;
  }
  EXPECT_EQ(control<TabControl>("SSTab1").captions(),
            (std::vector<std::string>{"&Trigger", "&Action"}));
}

TEST_F(EditorLayoutTest, TheEventListHasItsColumnsAndCheckBoxes) {
  openEditor();
  const ListView& events = control<ListView>("lvwEvents");
  ASSERT_EQ(events.columns().size(), 3U);
  EXPECT_EQ(events.columns()[0].header, "Type");
  EXPECT_EQ(events.columns()[1].header, "Event No.");
  EXPECT_EQ(events.columns()[2].header, "Description");
  EXPECT_TRUE(events.checkBoxes());
}

TEST_F(EditorLayoutTest, OkIsTheDefaultAndCancelTheCancelButton) {
  openEditor();
  EXPECT_EQ(editor->defaultButton(), &button("cmdOK"));
  EXPECT_EQ(editor->cancelButton(), &button("cmdCancel"));
}

// "&Add..." and "&Action" share their letter: both captions are fixed.
TEST_F(EditorLayoutTest, OtherMnemonicsAreUnique) {
  openEditor();
  std::vector<std::string> captions = control<TabControl>("SSTab1").captions();
  for (const Control* c : editor->controls()) captions.push_back(c->text());
  std::multiset<char> letters;
  for (const std::string& caption : captions) {
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos || caption == "&Action") continue;
    letters.insert(static_cast<char>(std::tolower(caption[mark + 1])));
  }
  for (const char letter : letters) EXPECT_EQ(letters.count(letter), 1U) << letter;
  EXPECT_EQ(letters.size(), 6U);
}

TEST_F(EditorLayoutTest, NamesAreUnique) {
  openEditor();
  std::set<std::string> names;
  for (const Control* c : editor->controls())
    EXPECT_TRUE(names.insert(c->name()).second) << c->name();
}

}  // namespace
}  // namespace pelorin::test
