// The host's members as the component calls them.
#include "common/host_services.h"

#include <gmock/gmock.h>

#include "base/current_error.h"
#include "tests/fakes/recording_services.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;

class HostServicesTest : public testing::Test {
 protected:
  // The error of a member that fails, called on the line before `lineAfter`.
  template <class Call>
  void expectCallersLine(const std::string& member, Call&& call) {
    services.failing = {member};
    const auto error = errorOf(call);
    ASSERT_TRUE(error) << member;
    EXPECT_EQ(error->description(), member + " failed");
    EXPECT_EQ(error->line(), line) << member;
  }

  Journal journal;
  RecordingServices services{journal};
  std::uint32_t line = 0;
};

TEST_F(HostServicesTest, MembersAreCalledByTheirNames) {
  services.GetResourceString(5);
  services.canView(91, "Pelorin - Use");
  services.LogEvent("Add", "TriggerAction", 4, "Trigger Event 42", 1184);
  services.ShowHelp(217);
  services.EnableCustomize();
  services.ZornIsVn8HardwareSupportEnabled();
  EXPECT_EQ(services.OperatorID(), 7);
  EXPECT_EQ(services.WorkStationID(), 3);
  EXPECT_THAT(journal.lines(),
              ElementsAre("host: GetResourceString(5)", "host: Security(91, Pelorin - Use)",
                          "host: LogEvent(Add, TriggerAction, 4, Trigger Event 42, 1184)",
                          "host: ShowHelp(217)", "host: EnableCustomize",
                          "host: ZornIsVn8HardwareSupportEnabled", "host: OperatorID",
                          "host: WorkStationID"));
}

TEST_F(HostServicesTest, FailuresCarryTheCallersLine) {
  expectCallersLine("GetResourceString", [&] {
    line = __LINE__ + 1;
    services.GetResourceString(5);
  });
  expectCallersLine("LogEvent", [&] {
    line = __LINE__ + 1;
    services.LogEvent("Add", "TriggerAction", 4, "", 1184);
  });
  expectCallersLine("ShowHelp", [&] {
    line = __LINE__ + 1;
    services.ShowHelp(217);
  });
  expectCallersLine("EnableCustomize", [&] {
    line = __LINE__ + 1;
    services.EnableCustomize();
  });
  expectCallersLine("Security", [&] {
    line = __LINE__ + 1;
    services.canView(91, "x");
  });
  expectCallersLine("OperatorID", [&] {
    line = __LINE__ + 1;
    services.OperatorID();
  });
}

}  // namespace
}  // namespace pelorin::test
