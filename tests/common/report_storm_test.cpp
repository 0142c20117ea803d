// How many reports of one act are boxes, how long they are, and what a lost connection ends.
#include <gmock/gmock.h>

#include "common/guard.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class ReportStormTest : public testing::Test {
 protected:
  void report(int times) {
    for (int i = 0; i < times; ++i) {
      guarded(module, "Module1.Work", [] { throw RunTimeError(5, "no", 12); });
    }
  }
  std::string lastBox() const { return screen.boxes.back().text; }

  Surroundings surroundings;
  FakeEnvironment& environment = surroundings.environment;
  RecordingScreen& screen = surroundings.screen;
  Module1& module = surroundings.module;
  Acts& acts = screen.acts();
};

TEST_F(ReportStormTest, ActShowsTenReportsAndSaysAtItsEndHowManyMoreThereWere) {
  {
    const Act click(acts);
    report(1859);
    EXPECT_THAT(screen.boxes, SizeIs(10));
    EXPECT_THAT(screen.boxTexts(), Each(StartsWith("Module1.Work: ")));
  }
  ASSERT_THAT(screen.boxes, SizeIs(11));
  EXPECT_EQ(lastBox(), "1849 more errors were written to Pelorin.txt.");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::Critical);
  EXPECT_EQ(screen.boxes.back().buttons, BoxButtons::Ok);
  EXPECT_THAT(environment.lines, SizeIs(1859));
}

TEST_F(ReportStormTest, TenReportsNeedNoClosingBox) {
  {
    const Act click(acts);
    report(10);
  }
  EXPECT_THAT(screen.boxTexts(), Each(StartsWith("Module1.Work: ")));
  EXPECT_THAT(screen.boxes, SizeIs(10));
}

TEST_F(ReportStormTest, EachActHasTenReports) {
  for (int click = 0; click < 2; ++click) {
    const Act act(acts);
    report(10);
  }
  EXPECT_THAT(screen.boxes, SizeIs(20));
}

TEST_F(ReportStormTest, ActInsideAnActBelongsToIt) {
  {
    const Act click(acts);
    report(6);
    {
      const Act callOfTheHost(acts);
      report(6);
    }
    EXPECT_THAT(screen.boxes, SizeIs(10));
  }
  EXPECT_EQ(lastBox(), "2 more errors were written to Pelorin.txt.");
}

TEST_F(ReportStormTest, OutermostProcedureIsAnActOfItsOwn) {
  guarded(module, "Module1.Outer", [this] { report(11); });
  EXPECT_THAT(screen.boxes, SizeIs(11));
  EXPECT_EQ(lastBox(), "1 more errors were written to Pelorin.txt.");
  report(12);
  EXPECT_THAT(screen.boxes, SizeIs(11 + 12));
}

TEST_F(ReportStormTest, OtherBoxesAreNotCounted) {
  const Act click(acts);
  for (int i = 0; i < 20; ++i) module.inform("Please select a location.");
  report(10);
  EXPECT_THAT(screen.boxes, SizeIs(30));
}

TEST_F(ReportStormTest, ErrorsDuringTheClosingBoxAreAnActOfTheirOwn) {
  screen.duringBox = [this](const BoxRequest& box) {
    if (!box.text.starts_with("1 more")) return;
    screen.duringBox = nullptr;
    report(1);
  };
  {
    const Act click(acts);
    report(11);
  }
  EXPECT_THAT(screen.boxes, SizeIs(12));
  EXPECT_THAT(lastBox(), StartsWith("Module1.Work: "));
}

TEST_F(ReportStormTest, WhatCouldNotBeLoggedIsNotSaidToBe) {
  {
    const Act click(acts);
    report(12);
    environment.canWrite = false;
    report(3);
  }
  EXPECT_EQ(lastBox(),
            "2 more errors were written to Pelorin.txt.\r\n"
            "3 more errors could not be written to Pelorin.txt.");
}

TEST_F(ReportStormTest, ClosingBoxThatCannotBeShownLetsNothingOut) {
  EXPECT_NO_THROW({
    const Act click(acts);
    report(10);
    screen.duringBox = [](const BoxRequest&) { throw std::bad_alloc(); };
    report(1);
  });
}

TEST_F(ReportStormTest, BoxShowsTwoThousandCharactersAndTheLogAll) {
  std::string description;
  for (int i = 0; i < 3000; ++i) description += "\xC3\xA4";
  module.ReportError("Module1.Work", RunTimeError(5, description, 12));
  const std::string start = "Module1.Work: Line: 12 :";
  EXPECT_EQ(lastBox(), start + description.substr(0, 2 * (2000 - start.size())));
  EXPECT_EQ(environment.lines[0].second, environment.dateTime + ": " + start + description);
}

TEST_F(ReportStormTest, TextOfTwoThousandCharactersIsShownWhole) {
  const std::string start = "Module1.Work: Line: 12 :";
  const std::string description(2000 - start.size(), 'x');
  module.ReportError("Module1.Work", RunTimeError(5, description, 12));
  EXPECT_EQ(lastBox(), start + description);
}

class LostConnectionTest : public ReportStormTest {
 protected:
  void read() {
    guarded(module, "Module1.Read", [this] { module.DBConnection()->open("select 1"); });
  }
  std::vector<std::string> statements() const { return surroundings.database->statements(); }
};

TEST_F(LostConnectionTest, IsReportedOnceAndAskedNothingMoreInThisAct) {
  surroundings.database->lose("select 1");
  const Act click(acts);
  for (int i = 0; i < 100; ++i) read();
  EXPECT_THAT(screen.boxes, SizeIs(1));
  EXPECT_THAT(environment.lines, SizeIs(1));
  EXPECT_THAT(statements(), ElementsAre("select 1"));
  EXPECT_TRUE(module.connectionLost());
}

TEST_F(LostConnectionTest, EndsTheProcedureThatComesNextWithoutAReport) {
  surroundings.database->lose("select 1");
  const Act click(acts);
  read();
  EXPECT_FALSE(guarded(module, "Module1.Next", [this] { module.DBConnection(); }));
  EXPECT_THAT(screen.boxes, SizeIs(1));
}

TEST_F(LostConnectionTest, IsTriedAgainByTheNextAct) {
  surroundings.database->lose("select 1");
  read();
  EXPECT_FALSE(module.connectionLost());
  read();
  EXPECT_THAT(statements(), ElementsAre("select 1", "select 1"));
  EXPECT_THAT(screen.boxes, SizeIs(2));
}

TEST_F(LostConnectionTest, IsForgottenWhenTheHostGivesAnother) {
  surroundings.database->lose("select 1");
  const Act click(acts);
  read();
  Journal otherJournal;
  auto other = std::make_shared<ScriptedConnection>(otherJournal);
  module.setDBConnection(other);
  read();
  EXPECT_THAT(other->statements(), ElementsAre("select 1"));
}

TEST_F(LostConnectionTest, OtherErrorsLetTheNextStatementThrough) {
  surroundings.database->fail("select 1");
  const Act click(acts);
  read();
  read();
  EXPECT_THAT(statements(), SizeIs(2));
  EXPECT_FALSE(module.connectionLost());
}

}  // namespace
}  // namespace pelorin::test
