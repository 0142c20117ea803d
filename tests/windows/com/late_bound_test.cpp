// Calls by name, and what their errors become.
#include "win32/com/late_bound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/windows/com/fake_object.h"
#include "win32/com/bstr.h"
#include "win32/com/com_error.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

struct LateBoundTest : ::testing::Test {
  ComPtr<FakeObject> fake = FakeObject::make();
  LateBound object{ComPtr<IDispatch>(fake.get())};

  template <class Work>
  RunTimeError errorFrom(Work&& work) {
    try {
      work();
    } catch (const RunTimeError& error) {
      return error;
    }
    return {0, "no error"};
  }
};

TEST_F(LateBoundTest, PassesArgumentsInTheirOrder) {
  fake->on(L"Member", answer(Variant::int32(7)));
  const Variant result =
      object.call(L"Member", {Variant::int32(1), Variant::text("two"), Variant::missing()});
  EXPECT_EQ(valueOf(result), Value(std::int64_t{7}));
  EXPECT_THAT(fake->calls(), ElementsAre("Member(I4 1, BSTR two, MISSING)"));
}

TEST_F(LateBoundTest, CallsAsMethodOrPropertyValue) {
  WORD kind = 0;
  fake->on(L"Member", [&](Call& call) {
    kind = call.kind;
    return S_OK;
  });
  object.call(L"Member");
  EXPECT_EQ(kind, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
}

TEST_F(LateBoundTest, LooksANameUpOnce) {
  fake->on(L"Member", answer(Variant()));
  for (int i = 0; i < 3; ++i) object.call(L"Member");
  EXPECT_EQ(fake->nameLookups(), 1);
}

TEST_F(LateBoundTest, FindsNamesThatAreAnsweredByTheExtendedInterfaceOnly) {
  fake->extendedOnly().on(L"Member", answer(Variant::int32(7)));
  EXPECT_EQ(valueOf(object.call(L"member")), Value(std::int64_t{7}));
}

TEST_F(LateBoundTest, AssignsValuesAndReferences) {
  fake->on(L"Value", answer(Variant())).on(L"Object", answer(Variant()));
  object.put(L"Value", Variant::int16(91));
  object.putReference(L"Object", fake.get());
  EXPECT_THAT(fake->calls(), ElementsAre("put Value(I2 91)", "putref Object(OBJECT)"));
}

TEST_F(LateBoundTest, ItemIsTheDefaultMember) {
  const auto entry = FakeObject::make();
  fake->onDefault(answerObject(entry)).on(L"Item", answer(Variant()));
  EXPECT_EQ(object.item(Variant::text("key")).get(), entry.get());
  EXPECT_THAT(fake->calls(), ElementsAre("default(BSTR key)"));
}

TEST_F(LateBoundTest, ItemIsTheMemberOfThatNameWithoutADefault) {
  const auto entry = FakeObject::make();
  fake->on(L"Item", answerObject(entry));
  EXPECT_EQ(object.item(Variant::text("key")).get(), entry.get());
  EXPECT_THAT(fake->calls(), ElementsAre("Item(BSTR key)"));
}

TEST_F(LateBoundTest, ItemIsTheMemberOfThatNameWhenTheDefaultTakesNoKey) {
  const auto entry = FakeObject::make();
  fake->onDefault(refuse(DISP_E_BADPARAMCOUNT)).on(L"Item", answerObject(entry));
  EXPECT_EQ(object.item(Variant::text("key")).get(), entry.get());
}

TEST_F(LateBoundTest, FailingDefaultMemberIsAnError) {
  fake->onDefault(fail(E_FAIL, L"no such key")).on(L"Item", answer(Variant()));
  EXPECT_EQ(errorFrom([&] { object.item(Variant::text("key")); }).description(), "no such key");
}

TEST_F(LateBoundTest, AnotherResultThanAnObjectIsError424) {
  fake->on(L"Member", answer(Variant::int32(1)));
  EXPECT_EQ(errorFrom([&] { object.object(L"Member"); }).number(), 424);
}

TEST_F(LateBoundTest, UnknownMemberIsError438) {
  const RunTimeError error = errorFrom([&] { object.call(L"Nothing"); });
  EXPECT_EQ(error.number(), 438);
  EXPECT_EQ(error.description(), "Object doesn't support this property or method");
}

TEST_F(LateBoundTest, ErrorOfTheObjectKeepsItsNumberAndText) {
  fake->on(L"Member", fail(static_cast<HRESULT>(0x80040E14), L"Incorrect syntax"));
  const RunTimeError error = errorFrom([&] { object.call(L"Member"); });
  EXPECT_EQ(error.number(), -2147217900);
  EXPECT_EQ(error.description(), "Incorrect syntax");
}

TEST_F(LateBoundTest, ErrorOfTheControlFacilityIsItsPlainNumber) {
  fake->on(L"Member", fail(static_cast<HRESULT>(0x800A0CC1), L"Item cannot be found"));
  EXPECT_EQ(errorFrom([&] { object.call(L"Member"); }).number(), 3265);
}

TEST_F(LateBoundTest, ErrorWithAPlainCodeIsThatCode) {
  fake->on(L"Member", [](Call& call) {
    call.exception->wCode = 1004;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(errorFrom([&] { object.call(L"Member"); }).number(), 1004);
}

HRESULT STDAPICALLTYPE fillInLate(EXCEPINFO* info) {
  info->scode = E_ACCESSDENIED;
  info->bstrDescription = Bstr(std::wstring_view(L"late text")).release();
  return S_OK;
}

TEST_F(LateBoundTest, ErrorThatFillsInLateIsAsked) {
  fake->on(L"Member", [](Call& call) {
    call.exception->pfnDeferredFillIn = fillInLate;
    return DISP_E_EXCEPTION;
  });
  const RunTimeError error = errorFrom([&] { object.call(L"Member"); });
  EXPECT_EQ(error.number(), 70);
  EXPECT_EQ(error.description(), "late text");
}

TEST_F(LateBoundTest, ErrorWithoutTextHasTheStandardOne) {
  fake->on(L"Mismatch", refuse(DISP_E_TYPEMISMATCH))
      .on(L"Exception", fail(DISP_E_OVERFLOW, L""))
      .on(L"Unknown", refuse(static_cast<HRESULT>(0x8FFF1234)));
  EXPECT_EQ(errorFrom([&] { object.call(L"Mismatch"); }).description(), "Type mismatch");
  EXPECT_EQ(errorFrom([&] { object.call(L"Exception"); }).number(), 6);
  EXPECT_EQ(errorFrom([&] { object.call(L"Exception"); }).description(), "Overflow");
  EXPECT_EQ(errorFrom([&] { object.call(L"Unknown"); }).description(), "Automation error");
}

TEST_F(LateBoundTest, HoldsTheObjectWhileItIsCalled) {
  ULONG during = 0;
  std::optional<LateBound> only(std::in_place, ComPtr<IDispatch>(fake.get()));
  fake->on(L"Member", [&](Call&) {
    only.reset();
    during = fake->references();
    return S_OK;
  });
  only->call(L"Member");
  // This test's own reference, that of `object`, and the one for the call.
  EXPECT_EQ(during, 3U);
}

TEST_F(LateBoundTest, GivesEverythingBack) {
  const auto result = FakeObject::make();
  fake->on(L"Member", answerObject(result)).on(L"Failing", fail(E_FAIL, L"text"));
  {
    LateBound other{ComPtr<IDispatch>(fake.get())};
    other.object(L"Member", {Variant::object(result.get())});
    errorFrom([&] { other.call(L"Failing", {Variant::object(result.get())}); });
  }
  EXPECT_EQ(result->references(), 2U);  // this test's, and the action's in the object
}

}  // namespace
}  // namespace pelorin::test
