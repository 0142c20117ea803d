// The members of the add-in class as far as they do not need Windows.
#include "component/ta_manager_members.h"

#include "tests/component/component_fixture.h"
#include "tests/component/fake_entrance.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct TAManagerTest : ComponentTest {
  FakeEntrance entrance{component};
  TAManagerMembers manager{entrance};
};

TEST_F(TAManagerTest, InDesignIsFalseOnTheFirstAndEveryLaterCall) {
  for (int call = 0; call < 100; ++call) EXPECT_FALSE(manager.InDesign());
}

TEST_F(TAManagerTest, PlainMembersShowTheHourglassAndThenTheDefaultPointer) {
  using Member = void (TAManagerMembers::*)() noexcept;
  for (const Member member : {&TAManagerMembers::Activate, &TAManagerMembers::Destroy,
                              &TAManagerMembers::Install, &TAManagerMembers::UnInstall}) {
    screen.pointers.clear();
    (manager.*member)();
    EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
  }
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(TAManagerTest, OnStreamSetsTheDefaultPointerOnly) {
  manager.OnStream();
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Default));
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(TAManagerTest, ErrorOfAMemberIsABoxWithNumberAndNoLogLine) {
  screen.hourglassFails = true;
  manager.Install();
  ASSERT_THAT(screen.boxTexts(),
              ElementsAre("Exception in class MorvatPelorin.Install: Out of memory [7]"));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::None);
  EXPECT_EQ(screen.boxes[0].buttons, BoxButtons::Ok);
  EXPECT_THAT(environment.lines, IsEmpty());
}

TEST_F(TAManagerTest, ErrorsCarryTheNameOfTheirMember) {
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

// Each procedure inside reports on its own; the call of the host is one act.
TEST_F(TAManagerTest, RaiseFormShowsTenReportsAndOneBoxForTheRest) {
  auto scripted = std::make_shared<ScriptedConnection>(journal);
  component.module().setDBConnection(scripted);
  const std::string triggers = "exec TA_FetchSummary";
  Result answer{{"TriggerID", "TriggerAddress", "TriggerEventID", "Classname", "ActionID"}, {}};
  for (std::int64_t id = 1; id <= 30; ++id) {
    answer.rows.push_back({id, std::string("1.1"), id, std::string("DVR / NVR"), id});
    scripted->fail("exec TA_FetchDVRNameFromAction " + std::to_string(id));
  }
  scripted->answer(triggers, answer);
  screen.duringBox = [&, calls = 0](const BoxRequest&) mutable {
    if (++calls == 5) manager.GetAddInID("MorvatPelorin");
  };
  scripted->fail(
      "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'MorvatPelorin'");
  manager.RaiseForm(0);
  ASSERT_THAT(screen.boxes, ::testing::SizeIs(11));
  EXPECT_EQ(screen.boxes.back().text, "21 more errors were written to Pelorin.txt.");
}

TEST_F(TAManagerTest, FromAnotherThreadEachMemberTellsItThereAndDoesNothing) {
  entrance.otherThread = true;
  manager.Activate();
  manager.Destroy();
  manager.RaiseForm(hostWindow);
  manager.OnEvent();
  manager.OnStream();
  manager.Install();
  manager.UnInstall();
  std::vector<std::string> expected;
  for (const char* member :
       {"Activate", "Destroy", "RaiseForm", "OnEvent", "OnStream", "Install", "UnInstall"}) {
    expected.push_back(std::string("Exception in class MorvatPelorin.") + member +
                       ": wrong thread [-2147417842]");
  }
  EXPECT_EQ(entrance.told, expected);
  EXPECT_THAT(screen.boxes, IsEmpty());
  EXPECT_THAT(screen.pointers, IsEmpty());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(TAManagerTest, FromAnotherThreadPropertiesDoNothingInSilence) {
  entrance.otherThread = true;
  bool assigned = false;
  manager.assign([&](Component&) { assigned = true; });
  EXPECT_FALSE(assigned);
  EXPECT_FALSE(manager.InDesign());
  EXPECT_THAT(entrance.told, IsEmpty());
}

TEST_F(TAManagerTest, ErrorsOfAPropertyArePassedOver) {
  manager.assign([](Component&) { throw RunTimeError(5, "no"); });
  EXPECT_THAT(screen.boxes, IsEmpty());
  EXPECT_THAT(entrance.told, IsEmpty());
}

TEST_F(TAManagerTest, EveryCallIsInsideTheComponentUntilItEnds) {
  int during = 0;
  manager.assign([&](Component&) { during = entrance.inside; });
  EXPECT_EQ(during, 1);
  screen.duringBox = [&](const BoxRequest&) { during += entrance.inside; };
  screen.hourglassFails = true;
  manager.Activate();
  EXPECT_EQ(during, 2);
  EXPECT_EQ(entrance.inside, 0);
}

TEST_F(TAManagerTest, AddInIdIsTheFirstRowsOfThatName) {
  auto scripted = std::make_shared<ScriptedConnection>(journal);
  component.module().setDBConnection(scripted);
  scripted->answer(
      "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'MorvatPelorin'",
      {{"AddInID"}, {{std::int64_t{12}}, {std::int64_t{13}}}});
  EXPECT_EQ(manager.GetAddInID("MorvatPelorin"), 12);
  EXPECT_EQ(scripted->openCursors(), 0);
}

TEST_F(TAManagerTest, AddInIdIsZeroWithoutARow) {
  auto scripted = std::make_shared<ScriptedConnection>(journal);
  component.module().setDBConnection(scripted);
  EXPECT_EQ(manager.GetAddInID("O'Neil"), 0);
  EXPECT_THAT(journal.of("sql: "),
              ElementsAre("SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE "
                          "AddInObjectName=N'O'Neil'"));
  EXPECT_EQ(scripted->openCursors(), 0);
}

TEST_F(TAManagerTest, AddInIdIsZeroAfterAnErrorThatIsReported) {
  component.module().setDBConnection(nullptr);
  EXPECT_EQ(manager.GetAddInID("MorvatPelorin"), 0);
  EXPECT_THAT(screen.boxTexts(), ElementsAre(StartsWith("TAManager.GetAddInID: Line: ")));
}

}  // namespace
}  // namespace pelorin::test
