// Triggers that open although what they name is not there any more.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EditedTriggerTest : public EditorTest {
 protected:
  static constexpr int unknownEvent = 777;

  bool ticked(int row) { return control<ListBox>("lstEventFilters").selected(row); }
};

TEST_F(EditedTriggerTest, AnEventThatTheCatalogueDoesNotKnowTicksCategoryZeroAndChoosesNone) {
  answerCctvTrigger(5, {5, "1.2.3", unknownEvent, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  EXPECT_TRUE(ticked(0));
  for (const int row : {1, 2, 3, 4}) EXPECT_FALSE(ticked(row)) << row;
  EXPECT_THAT(texts(combo("cmbEvents")),
              ElementsAre("05001 - Input in alarm", "05002 - Tamper", "10001 - Motion"));
  EXPECT_EQ(combo("cmbEvents").listIndex(), -1);
  EXPECT_EQ(textBox("txtLocation").text(), "1.2.3");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EditedTriggerTest, AnEventThatTheCatalogueDoesNotKnowIsNotReplacedByAnother) {
  answerCctvTrigger(5, {5, "1.2.3", unknownEvent, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Required field missing. Must specify event."));
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(EditedTriggerTest, AKnownCategoryThatLostTheEventChoosesNone) {
  answerCctvTrigger(5, {5, "1.2.3", 150, 11, 1, 1, 1, 31, 0, 0});
  editCctv();
  EXPECT_TRUE(ticked(1));
  EXPECT_EQ(combo("cmbEvents").listIndex(), -1);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EditedTriggerTest, AVanishedTriggerOpensWithoutAMessage) {
  for (const std::int16_t deviceClass : {device_class::cctv, device_class::dvr}) {
    openEditor({77, deviceClass});
    EXPECT_TRUE(screen.boxes.empty()) << screen.boxTexts().front();
    EXPECT_TRUE(environment.lines.empty());
    EXPECT_EQ(editor->caption(), "Edit Trigger Action");
    editor->unload();
  }
}

}  // namespace
}  // namespace pelorin::test
