// What a guarded procedure reports, and what it returns.
#include "common/guard.h"

#include <gmock/gmock.h>

#include "base/current_error.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GuardTest : public testing::Test {
 protected:
  Surroundings surroundings;
  Module1& module = surroundings.module;
  RecordingScreen& screen = surroundings.screen;
};

TEST_F(GuardTest, WorkThatEndsIsNotReported) {
  EXPECT_TRUE(guarded(module, "Module1.Work", [] {}));
  EXPECT_EQ(guardedOr(module, "Module1.Work", 0, [] { return 7; }), 7);
  EXPECT_THAT(screen.boxes, IsEmpty());
}

TEST_F(GuardTest, ErrorIsReportedUnderTheProceduresName) {
  EXPECT_FALSE(guarded(module, "Module1.Work", [] { throw RunTimeError(5, "no", 12); }));
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Module1.Work: Line: 12 :no"));
}

TEST_F(GuardTest, FailingFunctionReturnsItsDefault) {
  const std::string text = guardedOr(module, "Module1.Work", std::string("default"),
                                     []() -> std::string { throw RunTimeError(5, "no", 12); });
  EXPECT_EQ(text, "default");
}

TEST_F(GuardTest, InnerReportIsTheOnlyOne) {
  const bool done = guarded(module, "Module1.Outer", [&] {
    if (!guarded(module, "Module1.Inner", [] { throw RunTimeError(5, "no", 12); })) {
      throw AlreadyReported();
    }
  });
  EXPECT_FALSE(done);
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Module1.Inner: Line: 12 :no"));
}

TEST_F(GuardTest, ErrorsOfTheLanguageAreReportedToo) {
  guarded(module, "Module1.Memory", [] { throw std::bad_alloc(); });
  guarded(module, "Module1.Library", [] { throw std::out_of_range("beyond"); });
  guarded(module, "Module1.Foreign", [] { throw 42; });
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Module1.Memory: Line: 0 :Out of memory",
                                             "Module1.Library: Line: 0 :beyond",
                                             "Module1.Foreign: Line: 0 :Internal error"));
}

TEST_F(GuardTest, ErrorIsHandedBackToWhoAsksForIt) {
  EXPECT_FALSE(errorOf([] {}));
  const auto error = errorOf([] { throw RunTimeError(35602, "Key is not unique", 9); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), 35602);
  EXPECT_EQ(error->description(), "Key is not unique");
  EXPECT_THAT(screen.boxes, IsEmpty());
}

TEST(AtLine, InnermostKnownLineIsKept) {
  const auto error =
      errorOf([] { withLine(SourceLine::current(), [] { throw RunTimeError(5, "no", 12); }); });
  EXPECT_EQ(error->line(), 12U);
}

}  // namespace
}  // namespace pelorin::test
