// The picker over recording surroundings, with the form that opened it.
#pragma once

#include <gmock/gmock.h>

#include <optional>
#include <string>

#include "common/form_links.h"
#include "controls/list_view.h"
#include "location/f_location.h"
#include "tests/fakes/bitmap_builder.h"
#include "tests/fakes/lookups.h"
#include "tests/fakes/surroundings.h"
#include "tests/location/small_site.h"

namespace pelorin::test {

// Stands for the editor: a window with a text box and a list.
class RecordingTarget : public LocationTarget {
 public:
  WindowHandle window = 0x77;
  std::string text = "before";
  std::string tag = "before";
  ListView lvwLocation{noParent, "lvwLocation", {}, {{"Location", 4000}}, false};
  std::optional<RunTimeError> failure;

  WindowHandle locationOwner() const override { return window; }
  void setSingleLocation(const std::string& newText, const std::string& newTag) override {
    failIfAsked();
    text = newText;
    tag = newTag;
  }
  void addLocation(const std::string& key, const std::string& newText,
                   const std::string& newTag) override {
    failIfAsked();
    lvwLocation.add(0, {.key = key, .text = newText, .subItems = {}, .tag = newTag});
  }

 private:
  void failIfAsked() const {
    if (failure) throw RunTimeError(*failure);
  }
};

class PickerTest : public testing::Test {
 protected:
  PickerTest() {
    around.services->texts[1843] = "Dial-Up";
    around.environment.pictures[pictureFile] = stripPicture(69);
    answerServer(*around.database);
    answer("EXECUTE sp_FetchServerPorts 1",
           portRows({{number(5), "Port", "Vollo", number(0), "P5"}}));
    answer("EXECUTE sp_FetchPortPanels 5",
           controllerRows({{number(8), "Controller", number(7), "C8"}}));
    answer(
        "SELECT DoorID, DoorName, DoorIndex, Address FROM Doors WHERE Active = 1 AND Visible = 1 "
        "AND ControllerID = 8 ORDER BY DoorName ",
        {{"DoorID", "DoorName", "DoorIndex", "Address"},
         {{number(1), "Front", number(1), "D1"}, {number(2), "R&D", number(2), "D2"}}});
  }

  ~PickerTest() override { picker.unload(); }

  void answer(const std::string& sql, Result result) {
    around.database->answer(sql, std::move(result));
  }
  void open(const std::string& mode = "singlelocation") {
    picker.setParent(target);
    picker.setMode(mode);
    around.screen.show(picker);
  }
  TreeNode& node(const std::string& key) { return nodeOf(picker.tvTree, key); }
  void click(const std::string& key) { picker.tvTree.userSelect(node(key)); }
  void doubleClick(const std::string& key) {
    click(key);
    picker.tvTree.userDoubleClick();
  }
  std::vector<std::string> boxes() const { return around.screen.boxTexts(); }

  static constexpr const char* pictureFile = "C:\\Component\\Graphics\\pcDetail.bmp";
  static constexpr const char* captionFile = "C:\\Component\\PelorinCaptions.ini";

  Surroundings around;
  RecordingTarget target;
  FLocation picker{around.module};
};

}  // namespace pelorin::test
