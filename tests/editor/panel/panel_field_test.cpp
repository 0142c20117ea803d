// A panel's table: shown and read in its order, written in the order of the arguments.
#include "editor/panel/panel_field.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

class PanelFieldTest : public ::testing::Test, protected Surroundings {
 protected:
  FieldCombo device{noParent, "cmbDevice", {}};
  FieldCombo camera{noParent, "cmbCamera", {}};
  TextBox seconds{noParent, "txtSeconds", {}};
  CheckBox loud{noParent, "chkLoud", {}, "Loud"};
  const PanelFields fields{{3, "DeviceID", choice(device, "Device")},
                           {1, "CameraID", choice(camera, "Camera", Needed::Never), "Camera"},
                           {2, "Seconds", narrow(wholeNumber(seconds))},
                           {4, "Loud", mark(loud)}};

  void SetUp() override {
    for (const int id : {21, 22}) device.addItem("Device", id);
    // As a panel does: another device brings cameras of its own.
    device.onClick = [this] {
      camera.clear();
      for (const int camerasId : {1, 2})
        camera.addItem("Camera", device.selectedData() + camerasId);
    };
    device.setListIndex(0);
  }
  bool show(std::vector<Value> row) {
    database->answer("select", {{"DeviceID", "CameraID", "Seconds", "Loud"}, {std::move(row)}});
    RecordSet rows = module.DBConnection()->open("select");
    rows.next();
    const bool whole = showStored(fields, rows);
    EXPECT_EQ(database->openCursors(), 0);
    return whole;
  }
};

TEST_F(PanelFieldTest, ShowsInTheOrderOfTheTable) {
  EXPECT_TRUE(show({22, 24, 30, true}));
  EXPECT_EQ(device.selectedData(), 22);
  EXPECT_EQ(camera.selectedData(), 24);
  EXPECT_EQ(seconds.text(), "30");
  EXPECT_TRUE(loud.checked());
}

TEST_F(PanelFieldTest, ShowsNothingOfARowThatCannotBeRead) {
  EXPECT_THROW(show({22, 24, 30, Unreadable()}), RunTimeError);
  EXPECT_EQ(device.selectedData(), 21);
}

TEST_F(PanelFieldTest, ListsTheArgumentsByTheirPosition) {
  show({22, 24, 30, true});
  const Arguments values = readValues(fields);
  EXPECT_EQ(argumentList(values), "24, 30, 22, True");
  EXPECT_EQ(values.at(1).name, "Camera");
  EXPECT_EQ(values.at(3).name, "DeviceID");
}

TEST_F(PanelFieldTest, AChoiceThatIsMissingIsAnErrorOnlyWhereItIsNeeded) {
  camera.clear();
  EXPECT_EQ(argumentList(readValues(fields)), "0, 0, 21, False");
  device.setListIndex(-1);
  EXPECT_THROW(readValues(fields), RunTimeError);
}

TEST_F(PanelFieldTest, ALargeNumberIsAnErrorWhereTheDatabaseHoldsSixteenBits) {
  seconds.setText("32768");
  EXPECT_THROW(readValues(fields), RunTimeError);
}

TEST_F(PanelFieldTest, AValueThatIsGoneBlocksOnlyWhenItsListBrokeOff) {
  EXPECT_TRUE(show({22, 99, 30, true}));
  camera.listRead = false;
  EXPECT_FALSE(show({22, 99, 30, true}));
  EXPECT_TRUE(show({22, 24, 30, true}));
}

TEST_F(PanelFieldTest, ArgumentsAreWrittenByTheirType) {
  EXPECT_EQ(argumentList({{2, {"", 7.5}}, {1, {"", 3}}, {4, {"", false}}, {3, {"", "it's"}}}),
            "3, 7.5, 'it's', False");
}

}  // namespace
}  // namespace pelorin::test
