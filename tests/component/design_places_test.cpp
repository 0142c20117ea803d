// Where every control of the three windows stands in the design, in tab order: name, container with
// its page, place in twips; and the buttons that Enter and Escape press.
#include "editor/frm_trigger_action.h"
#include "tests/component/component_fixture.h"

namespace pelorin::test {
namespace {

struct DesignedControl {
  const char* name;
  const char* container;  // empty: the form
  int page;
  Place place;
};

struct DesignedForm {
  Size client;
  const char* defaultButton;
  const char* cancelButton;
  std::vector<DesignedControl> controls;
};

const DesignedForm summaryDesign{{11880, 6720},
                                 "cmdAddEdit(1)",
                                 "cmdClose",
                                 {
                                     {"MSFlexGrid1", "", 0, {120, 120, 11640, 5955}},
                                     {"cmdAddEdit(0)", "", 0, {120, 6195, 1335, 405}},
                                     {"cmdAddEdit(1)", "", 0, {1575, 6195, 1335, 405}},
                                     {"cmdDelete", "", 0, {3030, 6195, 1335, 405}},
                                     {"cmdHelp", "", 0, {8970, 6195, 1335, 405}},
                                     {"cmdClose", "", 0, {10425, 6195, 1335, 405}},
                                 }};

const DesignedForm editorDesign{
    {10200, 7590},
    "cmdOK",
    "cmdCancel",
    {
        {"SSTab1", "", 0, {120, 120, 9960, 6840}},
        {"lblLocation", "SSTab1", 0, {180, 540, 1500, 255}},
        {"txtLocation", "SSTab1", 0, {180, 825, 8970, 330}},
        {"lvwLocation", "SSTab1", 0, {180, 825, 8010, 1410}},
        {"cmdAddLocation", "SSTab1", 0, {8370, 825, 1410, 390}},
        {"cmdDeleteLocation", "SSTab1", 0, {8370, 1305, 1410, 390}},
        {"cmdSingleLocation", "SSTab1", 0, {9270, 795, 510, 390}},
        {"lstEventFilters", "SSTab1", 0, {180, 2430, 2880, 4200}},
        {"lvwEvents", "SSTab1", 0, {3240, 2430, 6540, 3660}},
        {"cmdSelect(0)", "SSTab1", 0, {3240, 6240, 1710, 390}},
        {"cmdSelect(1)", "SSTab1", 0, {5070, 6240, 1710, 390}},
        {"fraEditOverlay", "SSTab1", 0, {3240, 2430, 6540, 4200}},
        {"lblEvent", "fraEditOverlay", 0, {240, 465, 840, 255}},
        {"cmbEvents", "fraEditOverlay", 0, {1140, 420, 5160, 330}},
        {"lblActionDeviceClass", "SSTab1", 1, {180, 585, 1380, 255}},
        {"cmbActionDeviceClass", "SSTab1", 1, {1620, 540, 4500, 330}},
        {"fraCCTVAction", "SSTab1", 1, {180, 1080, 9600, 5550}},
        {"lblCCTVSwitchers", "fraCCTVAction", 0, {240, 465, 1140, 255}},
        {"cmbCCTVSwitchers", "fraCCTVAction", 0, {1440, 420, 4500, 330}},
        {"lblCTCVAction", "fraCCTVAction", 0, {240, 945, 1140, 255}},
        {"cmbCCTVActions", "fraCCTVAction", 0, {1440, 900, 4500, 330}},
        {"lblCCTVCamAction(2)", "fraCCTVAction", 0, {240, 1425, 1140, 255}},
        {"cmbCCTVCameras", "fraCCTVAction", 0, {1440, 1380, 4500, 330}},
        {"lblCCTVCamAction(1)", "fraCCTVAction", 0, {240, 1905, 1140, 255}},
        {"cmbCCTVPresets", "fraCCTVAction", 0, {1440, 1860, 4500, 330}},
        {"lblCCTVCamAction(0)", "fraCCTVAction", 0, {240, 2385, 1140, 255}},
        {"cmbCCTVMonitors", "fraCCTVAction", 0, {1440, 2340, 1500, 330}},
        {"chkCCTVDisplayViewer", "fraCCTVAction", 0, {1440, 2820, 8100, 330}},
        {"lblCCTVAlarm", "fraCCTVAction", 0, {240, 3345, 1140, 255}},
        {"txtCCTVAlarm", "fraCCTVAction", 0, {1440, 3300, 1500, 330}},
        {"chkCCTVAutoRTNTriggers", "fraCCTVAction", 0, {1440, 3780, 8100, 330}},
        {"cmbCCTVHiddenININameCache", "SSTab1", 1, {6300, 420, 1500, 330}},
        {"fraDVRAction", "SSTab1", 1, {180, 1080, 9600, 5550}},
        {"lblDVRUnit", "fraDVRAction", 0, {240, 465, 3300, 255}},
        {"cmbDVRUnit", "fraDVRAction", 0, {3600, 420, 4500, 330}},
        {"lblDVRCamera", "fraDVRAction", 0, {240, 945, 3300, 255}},
        {"cmbDVRCamera", "fraDVRAction", 0, {3600, 900, 4500, 330}},
        {"lblDVRRecordRate", "fraDVRAction", 0, {240, 1425, 3300, 255}},
        {"cmbDVRRecordRate", "fraDVRAction", 0, {3600, 1380, 1800, 330}},
        {"cmbRecordStandard", "fraDVRAction", 0, {5580, 1380, 1500, 330}},
        {"lblDVRAlarmDuration", "fraDVRAction", 0, {240, 1905, 3300, 255}},
        {"txtDVRAlarmDuration", "fraDVRAction", 0, {3600, 1860, 1800, 330}},
        {"lblDVRCameraPresets", "fraDVRAction", 0, {240, 2385, 3300, 255}},
        {"cmbDVRCameraPresets", "fraDVRAction", 0, {3600, 2340, 4500, 330}},
        {"lblDVRViewGroups", "fraDVRAction", 0, {240, 2865, 9120, 255}},
        {"cmbDVRViewGroups", "fraDVRAction", 0, {3600, 3180, 4500, 330}},
        {"lblCommandSet", "fraDVRAction", 0, {240, 3705, 3300, 255}},
        {"cmbCommandSet", "fraDVRAction", 0, {3600, 3660, 4500, 330}},
        {"cmdApply", "", 0, {4080, 7080, 1410, 390}},
        {"cmdOK", "", 0, {5610, 7080, 1410, 390}},
        {"cmdCancel", "", 0, {7140, 7080, 1410, 390}},
        {"cmdHelp", "", 0, {8670, 7080, 1410, 390}},
    }};

const DesignedForm pickerDesign{{5145, 5820},
                                "cmdMain(0)",
                                "cmdMain(1)",
                                {
                                    {"lbllocationLabel", "", 0, {90, 585, 735, 195}},
                                    {"lblLocation", "", 0, {1080, 585, 3435, 195}},
                                    {"lblCaption", "", 0, {90, 195, 960, 195}},
                                    {"txtCaption", "", 0, {1080, 135, 3435, 315}},
                                    {"Label1", "", 0, {90, 135, 4380, 420}},
                                    {"tvTree", "", 0, {90, 810, 4965, 4335}},
                                    {"cmdMain(0)", "", 0, {2925, 5310, 1005, 375}},
                                    {"cmdMain(1)", "", 0, {4050, 5310, 1005, 375}},
                                    {"cmdMain(2)", "", 0, {90, 5310, 1005, 375}},
                                }};

std::string nameOf(const Control* control) {
  return control == nullptr ? "" : control->name();
}

class DesignPlaces : public ::testing::Test {
 protected:
  static void expectAsDesigned(const Form& form, const DesignedForm& design) {
    EXPECT_EQ(form.client(), design.client);
    EXPECT_EQ(nameOf(form.defaultButton()), design.defaultButton);
    EXPECT_EQ(nameOf(form.cancelButton()), design.cancelButton);
    ASSERT_EQ(form.controls().size(), design.controls.size());
    for (std::size_t i = 0; i < design.controls.size(); ++i) {
      const Control& control = *form.controls()[i];
      const DesignedControl& designed = design.controls[i];
      SCOPED_TRACE(designed.name);
      EXPECT_EQ(control.name(), designed.name);
      EXPECT_EQ(nameOf(control.container()), designed.container);
      EXPECT_EQ(control.page(), designed.page);
      EXPECT_EQ(control.place(), designed.place);
    }
  }

  Surroundings around;
  EventCatalogue catalogue{around.module};
};

TEST_F(DesignPlaces, OfTheSummary) {
  expectAsDesigned(frmTASummary(around.module, catalogue, {}), summaryDesign);
}

TEST_F(DesignPlaces, OfTheEditor) {
  expectAsDesigned(frmTriggerAction(around.module, catalogue, {}, {}, {}), editorDesign);
}

TEST_F(DesignPlaces, OfThePicker) {
  expectAsDesigned(FLocation(around.module), pickerDesign);
}

}  // namespace
}  // namespace pelorin::test
