// What the members of the add-in class show when they fail, and what they leave alone.
#include <new>

#include "component/ta_manager_members.h"
#include "tests/component/component_fixture.h"
#include "tests/component/fake_entrance.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A database that writes its statements to the journal, and a system that refuses what it is told
// to refuse.
struct MemberErrorsTest : ComponentTest {
  MemberErrorsTest() {
    component.module().setDBConnection(scripted);
    screen.beforeAct = [this](const std::string& act, Form*) {
      if (act != refused) return;
      refused.clear();
      refusal();
    };
  }
  ~MemberErrorsTest() override { screen.beforeAct = {}; }

  void refuse(const std::string& act, std::function<void()> how) {
    refused = act;
    refusal = std::move(how);
  }

  std::shared_ptr<ScriptedConnection> scripted = std::make_shared<ScriptedConnection>(journal);
  FakeEntrance entrance{component};
  TAManagerMembers manager{entrance};
  std::string refused;
  std::function<void()> refusal;
};

TEST_F(MemberErrorsTest, OnStreamNamesItself) {
  refuse("point", [] { throw RunTimeError(13, "Type mismatch"); });
  manager.OnStream();
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Exception in class MorvatPelorin.OnStream: Type mismatch [13]"));
}

TEST_F(MemberErrorsTest, NoMemoryIsErrorSeven) {
  refuse("create", [] { throw std::bad_alloc(); });
  manager.RaiseForm(hostWindow);
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Exception in class MorvatPelorin.RaiseForm: Out of memory [7]"));
}

TEST_F(MemberErrorsTest, ANegativeNumberIsShownAsItIs) {
  refuse("create", [] { throw RunTimeError(-2147467259, "Unspecified error"); });
  manager.RaiseForm(hostWindow);
  EXPECT_THAT(
      screen.boxTexts(),
      ElementsAre("Exception in class MorvatPelorin.RaiseForm: Unspecified error [-2147467259]"));
}

TEST_F(MemberErrorsTest, ARefusedOperatorSendsNothingToTheDatabase) {
  services->permitted = false;
  manager.RaiseForm(hostWindow);
  EXPECT_THAT(scripted->statements(), IsEmpty());
  EXPECT_THAT(openForms(), IsEmpty());
}

TEST_F(MemberErrorsTest, ARightThatCannotBeAskedForSendsNothingToTheDatabaseEither) {
  services->failing.insert("Security");
  manager.RaiseForm(hostWindow);
  EXPECT_THAT(scripted->statements(), IsEmpty());
  EXPECT_THAT(openForms(), IsEmpty());
}

TEST_F(MemberErrorsTest, AllOtherMembersSendNothingToTheDatabaseAndTheHost) {
  manager.InDesign();
  manager.Activate();
  manager.OnStream();
  manager.Install();
  manager.UnInstall();
  manager.Destroy();
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(MemberErrorsTest, AGrantedOperatorDoesAskTheDatabase) {
  manager.RaiseForm(hostWindow);
  EXPECT_FALSE(scripted->statements().empty());
}

}  // namespace
}  // namespace pelorin::test
