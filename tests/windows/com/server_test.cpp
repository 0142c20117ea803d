// The add-in class of the built DLL, as a host sees it.
#include <array>

#include "tests/windows/com/server_fixture.h"
#include "win32/com/bstr.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

using Member = ServerTest;
using Lifetime = ServerTest;

TEST_F(Member, InDesignIsFalseAtEveryCall) {
  for (int call = 0; call < 5; ++call) {
    VARIANT_BOOL inDesign = VARIANT_TRUE;
    EXPECT_EQ(manager->get_InDesign(&inDesign), S_OK);
    EXPECT_EQ(inDesign, VARIANT_FALSE);
    Variant byName;
    EXPECT_EQ(invoke(L"indesign", DISPATCH_PROPERTYGET, {}, &byName), S_OK);
    EXPECT_EQ(valueOf(byName), Value(false));
  }
}

TEST_F(Member, PlainMethodsSucceedByTableAndByName) {
  const Bstr text(std::string_view("path"));
  EXPECT_EQ(manager->Activate(), S_OK);
  EXPECT_EQ(manager->Destroy(), S_OK);
  EXPECT_EQ(manager->OnStream(text.get()), S_OK);
  EXPECT_EQ(manager->Install(text.get()), S_OK);
  EXPECT_EQ(manager->UnInstall(), S_OK);
  EXPECT_EQ(manager->OnEvent(1, 2, text.get(), 3, 4, text.get(), text.get(), nullptr), S_OK);
  for (const wchar_t* name : {L"Activate", L"Destroy", L"UnInstall"}) {
    EXPECT_EQ(invoke(name, DISPATCH_METHOD), S_OK);
    EXPECT_EQ(invoke(name, DISPATCH_METHOD, {Variant::int32(1)}), DISP_E_BADPARAMCOUNT);
  }
  EXPECT_EQ(invoke(L"Install", DISPATCH_METHOD, {Variant::text("path")}), S_OK);
}

TEST_F(Member, OnEventTakesReferencesAndAnyMessageValues) {
  Variant number = Variant::int32(5);
  Variant wrapped;
  wrapped.vt = VT_BYREF | VT_VARIANT;
  wrapped.pvarVal = &number;
  LONG type = 6;
  for (const Variant& values :
       {Variant(), Variant::int32(1), Variant::text("x"), Variant::object(form.get())}) {
    EXPECT_EQ(
        invoke(L"OnEvent", DISPATCH_METHOD,
               {wrapped, Variant::reference(type), Variant::text("engine"), Variant::real(46000.5),
                Variant::text("2026-11-21"), Variant::text("1.2"), Variant::text("text"), values}),
        S_OK);
  }
}

TEST_F(Member, OnEventRefusesWhatIsNoNumber) {
  EXPECT_EQ(
      invoke(L"OnEvent", DISPATCH_METHOD,
             {Variant::text("no number"), Variant::int32(1), Variant::text(""), Variant::real(1),
              Variant::real(1), Variant::text(""), Variant::text(""), Variant()}),
      DISP_E_TYPEMISMATCH);
  EXPECT_EQ(invoke(L"OnEvent", DISPATCH_METHOD, {Variant::int32(1)}), DISP_E_BADPARAMCOUNT);
}

TEST_F(Member, TextIsTakenByReferenceAndByName) {
  Variant text = Variant::text("path");
  Variant wrapped;
  wrapped.vt = VT_BYREF | VT_VARIANT;
  wrapped.pvarVal = &text;
  EXPECT_EQ(invoke(L"OnStream", DISPATCH_METHOD, {wrapped}), S_OK);

  std::wstring member = L"Install";
  std::wstring argument = L"SourcePath";
  std::array<LPOLESTR, 2> names{member.data(), argument.data()};
  std::array<DISPID, 2> ids{};
  ASSERT_EQ(manager->GetIDsOfNames(IID{}, names.data(), 2, LOCALE_USER_DEFAULT, ids.data()), S_OK);
  DISPPARAMS parameters{&text, &ids[1], 1, 1};
  EXPECT_EQ(manager->Invoke(ids[0], IID{}, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                            nullptr, nullptr, nullptr),
            S_OK);
}

TEST_F(Member, UnknownMembersAndWrongKindsAreRefused) {
  EXPECT_EQ(invoke(L"NoSuchMember", DISPATCH_METHOD), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(invoke(L"Parent", DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(invoke(L"InDesign", DISPATCH_PROPERTYPUT, {Variant::int32(1)}), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(invoke(L"Activate", DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Member, ObjectPropertiesAreAssignedWithAndWithoutSet) {
  for (const int kind : {DISPATCH_PROPERTYPUTREF, DISPATCH_PROPERTYPUT,
                         DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF}) {
    EXPECT_EQ(invoke(L"NTConnection", static_cast<WORD>(kind), {Variant::object(services.get())}),
              S_OK);
    EXPECT_EQ(services->references(), 2U);
    EXPECT_EQ(invoke(L"NTConnection", static_cast<WORD>(kind), {Variant::object(nullptr)}), S_OK);
    EXPECT_EQ(services->references(), 1U);
  }
}

TEST_F(Member, ObjectPropertiesIgnoreWhatIsNoObject) {
  for (const wchar_t* property : {L"Parent", L"NTConnection", L"DBConnection"}) {
    EXPECT_EQ(invoke(property, DISPATCH_PROPERTYPUTREF, {Variant::int32(5)}), S_OK);
    EXPECT_EQ(invoke(property, DISPATCH_PROPERTYPUT, {Variant()}), S_OK);
  }
}

TEST_F(Member, RaiseFormShowsTheSummaryOwnedByTheParent) {
  manager->putref_Parent(form.get());
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(GetWindow(summary(), GW_OWNER), window.get());
  EXPECT_THAT(ado.statements, Contains("exec TA_FetchSummary"));
}

TEST_F(Member, ParentThatIsNoWindowLeavesTheSummaryWithoutOwner) {
  manager->putref_Parent(services.get());
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(GetWindow(summary(), GW_OWNER), nullptr);
}

TEST_F(Member, ParentThatIsNoWindowKeepsTheOneBefore) {
  manager->putref_Parent(form.get());
  manager->putref_Parent(services.get());
  manager->putref_Parent(nullptr);
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(GetWindow(summary(), GW_OWNER), window.get());
}

TEST_F(Member, ParentIsNotHeldAndMayBeGone) {
  manager->putref_Parent(form.get());
  EXPECT_EQ(form->references(), 1U);
  window.destroy();
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(GetWindow(summary(), GW_OWNER), nullptr);
}

TEST_F(Member, ParentBelongsToOneObject) {
  manager->putref_Parent(form.get());
  const auto other = create();
  other->putref_NTConnection(services.get());
  other->putref_DBConnection(ado.connection.get());
  other->RaiseForm();
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(GetWindow(summary(), GW_OWNER), nullptr);
}

TEST_F(Member, WhatIsNoConnectionLeavesTheOneBefore) {
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->putref_DBConnection(services.get());
  manager->putref_DBConnection(nullptr);
  manager->RaiseForm();
  EXPECT_THAT(ado.statements, Contains("exec TA_FetchSummary"));
}

TEST_F(Member, ReferencesAreSharedByAllObjects) {
  create()->putref_NTConnection(services.get());
  create()->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  EXPECT_NE(summary(), nullptr);
  EXPECT_THAT(ado.statements, Not(IsEmpty()));
}

TEST_F(Member, RefusedRaiseFormShowsText3575AndNoWindow) {
  permitted = false;
  manager->putref_Parent(form.get());
  manager->putref_NTConnection(services.get());
  const BoxWatcher watcher;
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  ASSERT_THAT(watcher.texts(), ElementsAre("text 3575"));
  EXPECT_EQ(watcher.boxes()[0].owner, window.get());
  EXPECT_EQ(summary(), nullptr);
}

TEST_F(Member, RaiseFormWithoutServicesReportsAndReturnsNormally) {
  const BoxWatcher watcher;
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  EXPECT_THAT(watcher.texts(),
              Contains(StartsWith("Module1.MyPermissionGranted: Line: ")).Times(1));
  EXPECT_THAT(watcher.texts(), Contains(HasSubstr("Object variable or With block variable")));
}

TEST_F(Member, RaiseFormWithAFailingHostReportsAndReturnsNormally) {
  const auto broken = FakeObject::make();
  broken->on(L"Security", fail(E_FAIL, L"The host is not ready."));
  manager->putref_NTConnection(broken.get());
  {
    const BoxWatcher watcher;
    EXPECT_EQ(manager->RaiseForm(), S_OK);
    EXPECT_THAT(watcher.texts(), Contains(HasSubstr(" :The host is not ready.")));
  }
}

TEST_F(Lifetime, ObjectAnswersItsInterfacesWithOneIdentity) {
  ComPtr<IUnknown> first;
  ComPtr<IUnknown> second;
  ComPtr<IDispatch> automation;
  ComPtr<IProvideClassInfo> classInfo;
  ASSERT_EQ(manager->QueryInterface(IID_IDispatch, automation.putVoid()), S_OK);
  ASSERT_EQ(manager->QueryInterface(IID_IProvideClassInfo, classInfo.putVoid()), S_OK);
  ASSERT_EQ(automation->QueryInterface(IID_IUnknown, first.putVoid()), S_OK);
  ASSERT_EQ(classInfo->QueryInterface(IID_IUnknown, second.putVoid()), S_OK);
  EXPECT_EQ(first.get(), second.get());
  void* nothing = &first;
  EXPECT_EQ(manager->QueryInterface(IID_IPersist, &nothing), E_NOINTERFACE);
  EXPECT_EQ(nothing, nullptr);
}

TEST_F(Lifetime, FactoryMakesNothingElse) {
  void* object = &object;
  EXPECT_EQ(dll.getClassObject(IID_IUnknown, IID_IClassFactory, &object),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  const auto factory = dll.factory();
  EXPECT_EQ(factory->CreateInstance(manager.get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IPersist, &object), E_NOINTERFACE);
}

TEST_F(Lifetime, ObjectsFactoriesLocksAndWindowsKeepTheDllLoaded) {
  EXPECT_EQ(dll.canUnloadNow(), S_FALSE);
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  ASSERT_NE(summary(), nullptr);
  *manager.put() = nullptr;
  EXPECT_EQ(dll.canUnloadNow(), S_FALSE);
  closeWindows();
  EXPECT_EQ(dll.canUnloadNow(), S_OK);
  {
    const auto factory = dll.factory();
    EXPECT_EQ(dll.canUnloadNow(), S_FALSE);
    factory->LockServer(TRUE);
  }
  EXPECT_EQ(dll.canUnloadNow(), S_FALSE);
  dll.factory()->LockServer(FALSE);
  EXPECT_EQ(dll.canUnloadNow(), S_OK);
  manager = create();
}

TEST_F(Lifetime, SummaryStaysWhenTheObjectIsReleased) {
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  manager = create();
  EXPECT_NE(summary(), nullptr);
}

TEST_F(Lifetime, ObjectReleasedDuringItsOwnCallStaysWhole) {
  permitted = false;
  auto only = create();
  only->putref_Parent(form.get());
  only->putref_NTConnection(services.get());

  const auto host = FakeObject::make();
  host->on(L"Security", [&](Call& call) {
    only = ComPtr<_TAManager>();
    return fail(E_FAIL, L"released")(call);
  });
  host->on(L"GetResourceString", answer(Variant::text("refused")));
  only->putref_NTConnection(host.get());
  const BoxWatcher watcher;
  EXPECT_EQ(only->RaiseForm(), S_OK);
  EXPECT_THAT(watcher.texts(), Contains("refused"));
}

TEST_F(Lifetime, HostsObjectsAreGivenBack) {
  manager->putref_NTConnection(services.get());
  manager->putref_DBConnection(ado.connection.get());
  manager->RaiseForm();
  closeWindows();
  EXPECT_EQ(services->references(), 2U);
  EXPECT_EQ(ado.connection->references(), 2U);
  EXPECT_EQ(*ado.openRecordsets, 0);
  manager->putref_NTConnection(nullptr);
  EXPECT_EQ(services->references(), 1U);
}

}  // namespace
}  // namespace pelorin::test
