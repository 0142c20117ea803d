// The members of the add-in class as far as they do not need Windows.
#include "addin/ta_manager_members.h"

#include "tests/wiring/component_fixture.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct TAManagerTest : ComponentTest {
  TAManagerMembers manager{component};
};

TEST_F(TAManagerTest, inDesignIsFalseOnTheFirstAndEveryLaterCall) {
  for (int call = 0; call < 100; ++call) EXPECT_FALSE(manager.InDesign());
}

TEST_F(TAManagerTest, plainMembersShowTheHourglassAndThenTheDefaultPointer) {
  using Member = void (TAManagerMembers::*)() noexcept;
  for (const Member member : {&TAManagerMembers::Activate, &TAManagerMembers::Destroy,
                              &TAManagerMembers::Install, &TAManagerMembers::UnInstall}) {
    screen.pointers.clear();
    (manager.*member)();
    EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
  }
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(TAManagerTest, onStreamSetsTheDefaultPointerOnly) {
  manager.OnStream();
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Default));
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(TAManagerTest, errorOfAMemberIsABoxWithNumberAndNoLogLine) {
  screen.hourglassFails = true;
  manager.Install();
  ASSERT_THAT(screen.boxTexts(),
              ElementsAre("Exception in class MorvatPelorin.Install: Out of memory [7]"));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::None);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
  EXPECT_THAT(environment.lines, IsEmpty());
}

TEST_F(TAManagerTest, errorsCarryTheNameOfTheirMember) {
  screen.hourglassFails = true;
  screen.windowsFail = true;
  manager.Activate();
  manager.Destroy();
  manager.UnInstall();
  manager.RaiseForm(0);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre(StartsWith("Exception in class MorvatPelorin.Activate: "),
                          StartsWith("Exception in class MorvatPelorin.Destroy: "),
                          StartsWith("Exception in class MorvatPelorin.UnInstall: "),
                          "Exception in class MorvatPelorin.RaiseForm: Out of memory [7]"));
}

TEST_F(TAManagerTest, addInIdIsTheFirstRowsOfThatName) {
  auto scripted = std::make_shared<ScriptedConnection>(journal);
  component.module().setDBConnection(scripted);
  scripted->answer(
      "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'MorvatPelorin'",
      {{"AddInID"}, {{std::int64_t{12}}, {std::int64_t{13}}}});
  EXPECT_EQ(manager.GetAddInID("MorvatPelorin"), 12);
  EXPECT_EQ(scripted->openCursors(), 0);
}

TEST_F(TAManagerTest, addInIdIsZeroWithoutARow) {
  auto scripted = std::make_shared<ScriptedConnection>(journal);
  component.module().setDBConnection(scripted);
  EXPECT_EQ(manager.GetAddInID("O'Neil"), 0);
  EXPECT_THAT(journal.of("sql: "),
              ElementsAre("SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE "
                          "AddInObjectName=N'O'Neil'"));
  EXPECT_EQ(scripted->openCursors(), 0);
}

TEST_F(TAManagerTest, addInIdIsZeroAfterAnErrorThatIsReported) {
  component.module().setDBConnection(nullptr);
  EXPECT_EQ(manager.GetAddInID("MorvatPelorin"), 0);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("TAManager.GetAddInID: Line: ")));
}

}  // namespace
}  // namespace pelorin::test
