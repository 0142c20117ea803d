// The reference host's services, called late-bound.
#include <gmock/gmock.h>

#include "host/core/resource_texts.h"
#include "host/session/services_object.h"
#include "host/session/window_object.h"
#include "win32/services/late_bound_services.h"
#include "win32/services/recognise.h"

namespace pelorin::test {
namespace {

// The component's own adapter over the host's object.
class Services : public testing::Test {
 protected:
  Services() {
    state->audit = &trail;
    state->showHelp = [this](std::int16_t topic) { topics.push_back(topic); };
  }

  host::AuditTrail trail;
  std::vector<std::int16_t> topics;
  std::shared_ptr<host::HostState> state = std::make_shared<host::HostState>();
  LateBoundServices services{
      ComPtr<IDispatch>(host::makeObject<host::ServicesObject>(state).get())};
};

TEST_F(Services, TextsComeByNumberWithAndWithoutSubstitutions) {
  EXPECT_EQ(services.GetResourceString(3575), host::resourceText(3575));
  EXPECT_EQ(services.GRS(2835, {"ignored"}), "Add");
}

TEST_F(Services, ThePermissionFollowsTheSwitch) {
  EXPECT_TRUE(services.canView(91, "Pelorin - Use"));
  state->settings.permitted = false;
  EXPECT_FALSE(services.canView(91, "Pelorin - Use"));
}

TEST_F(Services, AnUnknownPermissionIsAnError) {
  EXPECT_THROW(services.canView(91, "Something else"), RunTimeError);
  EXPECT_THROW(services.canView(90, "Pelorin - Use"), RunTimeError);
}

TEST_F(Services, AnEventIsLoggedWithAllItSays) {
  services.LogEvent("Update", "TriggerAction", 7, "Trigger Event 42", 1185);
  ASSERT_EQ(trail.records().size(), 1U);
  const AuditRecord& record = trail.records()[0];
  EXPECT_EQ(record.operation, "Update");
  EXPECT_EQ(record.objectKind, "TriggerAction");
  EXPECT_EQ(record.objectId, 7);
  EXPECT_EQ(record.description, "Trigger Event 42");
  EXPECT_EQ(record.eventCode, 1185);
  EXPECT_EQ(record.loggedAt.size(), std::string("2026-11-21 08:30:00").size());
}

TEST_F(Services, HelpGoesToTheHost) {
  services.ShowHelp(217);
  EXPECT_THAT(topics, testing::ElementsAre(217));
}

TEST_F(Services, SwitchesAndNumbersAreReadEachTime) {
  state->settings = {.permitted = true,
                     .newerHardware = false,
                     .customisedDescriptions = true,
                     .operatorId = 12,
                     .workStationId = 3};
  EXPECT_FALSE(services.ZornIsVn8HardwareSupportEnabled());
  EXPECT_TRUE(services.EnableCustomize());
  EXPECT_EQ(services.OperatorID(), 12);
  EXPECT_EQ(services.WorkStationID(), 3);
}

TEST(HostWindow, ItsObjectIsRecognisedAsAWindow) {
  const HWND window = CreateWindowW(L"STATIC", L"Main", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr,
                                    nullptr, nullptr, nullptr);
  const auto object = host::makeObject<host::WindowObject>(window);
  EXPECT_EQ(windowOf(object.get()), window);
  DestroyWindow(window);
}

}  // namespace
}  // namespace pelorin::test
