// The host's services object is called with exactly the arguments that hosts expect.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/windows/com/fake_object.h"
#include "win32/services/late_bound_services.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

struct ServicesTest : ::testing::Test {
  ComPtr<FakeObject> host = FakeObject::make();
  ComPtr<FakeObject> security = FakeObject::make();
  ComPtr<FakeObject> permissions = FakeObject::make();
  ComPtr<FakeObject> permission = FakeObject::make();
  std::shared_ptr<HostServices> services =
      std::make_shared<LateBoundServices>(ComPtr<IDispatch>(host.get()));

  static Variant truth(VARIANT_BOOL value) {
    Variant variant;
    variant.vt = VT_BOOL;
    variant.boolVal = value;
    return variant;
  }
  void offerSecurity(const Variant& canView) {
    host->on(L"Security", answerObject(security));
    security->on(L"ComponentType", answer(Variant()))
        .on(L"SubPermissions", answerObject(permissions));
    permissions->onDefault(answerObject(permission));
    permission->on(L"CanView", answer(canView));
  }
};

TEST_F(ServicesTest, ResourceTextIsAskedForByReference) {
  host->on(L"GetResourceString", answer(Variant::text("a text")));
  EXPECT_EQ(services->GetResourceString(3575), "a text");
  EXPECT_THAT(host->calls(), ElementsAre("GetResourceString(BYREF I4 3575)"));
}

TEST_F(ServicesTest, NumberWrittenBackByTheHostIsIgnored) {
  host->on(L"GetResourceString", [](Call& call) {
    *call.arguments[0]->plVal = 99;
    return answer(Variant::int32(*call.arguments[0]->plVal))(call);
  });
  EXPECT_EQ(services->GetResourceString(3575), "99");
  EXPECT_EQ(services->GetResourceString(3575), "99");
  EXPECT_THAT(host->calls(),
              ElementsAre("GetResourceString(BYREF I4 3575)", "GetResourceString(BYREF I4 3575)"));
}

TEST_F(ServicesTest, TextWithSubstitutionsGetsAllNine) {
  host->on(L"GRS", answer(Variant::text("text with x")));
  EXPECT_EQ(services->GRS(5, {"x", "y"}), "text with x");
  EXPECT_THAT(host->calls(), ElementsAre("GRS(I4 5, BSTR x, BSTR y, BSTR , BSTR , BSTR , BSTR , "
                                         "BSTR , BSTR , BSTR )"));
}

TEST_F(ServicesTest, HostWithoutATextGivesAnEmptyOne) {
  host->on(L"GetResourceString", answer(Variant()));
  EXPECT_EQ(services->GetResourceString(1), "");
}

TEST_F(ServicesTest, PermissionIsReadStepByStepAndSecurityOnlyOnce) {
  offerSecurity(truth(VARIANT_TRUE));
  EXPECT_TRUE(services->canView(91, "Pelorin - Use"));
  EXPECT_THAT(host->calls(), ElementsAre("Security()"));
  EXPECT_THAT(security->calls(), ElementsAre("put ComponentType(I2 91)", "SubPermissions()"));
  EXPECT_THAT(permissions->calls(), ElementsAre("default(BSTR Pelorin - Use)"));
  EXPECT_THAT(permission->calls(), ElementsAre("CanView()"));
}

TEST_F(ServicesTest, PermissionIsFoundByItemInACollectionWithoutADefault) {
  host->on(L"Security", answerObject(security));
  security->on(L"ComponentType", answer(Variant()))
      .on(L"SubPermissions", answerObject(permissions));
  permissions->on(L"Item", answerObject(permission));
  permission->on(L"CanView", answer(truth(VARIANT_TRUE)));
  EXPECT_TRUE(services->canView(91, "Pelorin - Use"));
}

TEST_F(ServicesTest, PermissionThatIsNotABooleanIsReadAsOne) {
  offerSecurity(Variant::int32(0));
  EXPECT_FALSE(services->canView(91, "Pelorin - Use"));
}

TEST_F(ServicesTest, SecurityGoesBackToTheHost) {
  offerSecurity(truth(VARIANT_FALSE));
  EXPECT_FALSE(services->canView(91, "Pelorin - Use"));
  EXPECT_EQ(security->references(), 2U);  // this test's and the host's
  EXPECT_EQ(permission->references(), 2U);
}

TEST_F(ServicesTest, AuditEventCarriesItsIdByReferenceAndAShortCode) {
  host->on(L"LogEvent", answer(Variant()));
  services->LogEvent("Add", "TriggerAction", 12, "Trigger Event 5", 1184);
  EXPECT_THAT(host->calls(), ElementsAre("LogEvent(BSTR Add, BSTR TriggerAction, BYREF I4 12, "
                                         "BSTR Trigger Event 5, I2 1184)"));
}

TEST_F(ServicesTest, HelpTopicIsShort) {
  host->on(L"ShowHelp", answer(Variant()));
  services->ShowHelp(217);
  EXPECT_THAT(host->calls(), ElementsAre("ShowHelp(I2 217)"));
}

TEST_F(ServicesTest, FlagsAndNumbersAreReadFromWhateverTypeTheHostUses) {
  host->on(L"EnableCustomize", answer(truth(VARIANT_TRUE)))
      .on(L"ZornIsVn8HardwareSupportEnabled", answer(Variant::int16(1)))
      .on(L"OperatorID", answer(Variant::int16(7)))
      .on(L"WorkStationID", answer(Variant::text("3")));
  EXPECT_TRUE(services->EnableCustomize());
  EXPECT_TRUE(services->ZornIsVn8HardwareSupportEnabled());
  EXPECT_EQ(services->OperatorID(), 7);
  EXPECT_EQ(services->WorkStationID(), 3);
}

TEST_F(ServicesTest, HostsErrorCarriesTheLineOfTheCaller) {
  host->on(L"OperatorID", fail(E_FAIL, L"host failed"));
  try {
    services->OperatorID();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.description(), "host failed");
    EXPECT_GT(error.line(), 0U);
  }
}

TEST_F(ServicesTest, HostThatLetsGoOfItselfDuringACallIsHeld) {
  auto lonely = FakeObject::make();
  auto own = std::make_shared<LateBoundServices>(ComPtr<IDispatch>(lonely.get()));
  ULONG during = 0;
  lonely->on(L"OperatorID", [&](Call& call) {
    during = lonely->references();
    return answer(Variant::int32(1))(call);
  });
  EXPECT_EQ(own->HostServices::OperatorID(), 1);
  EXPECT_EQ(during, 3U);
  own.reset();
  EXPECT_EQ(lonely->references(), 1U);
}

}  // namespace
}  // namespace pelorin::test
