// BSTR, VARIANT, SAFEARRAY and interface pointers are owned and given back.
#include <gtest/gtest.h>

#include "tests/windows/com/fake_object.h"
#include "win32/com/bstr.h"
#include "win32/com/com_error.h"
#include "win32/com/safe_array.h"
#include "win32/com/variant.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

TEST(Text, TravelsBothWaysWithoutLoss) {
  const std::string text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\xAA";
  EXPECT_EQ(toWide(text), L"a\x00E4\x20AC\xD83D\xDEAA");
  EXPECT_EQ(toUtf8(toWide(text)), text);
}

TEST(Text, HalfASurrogatePairSurvives) {
  const std::wstring half = L"x\xD83Dy";
  EXPECT_EQ(toWide(toUtf8(half)), half);
}

TEST(Text, BytesThatAreNoTextBecomeTheReplacement) {
  EXPECT_EQ(toWide("a\xFFz"), L"a\xFFFDz");
  EXPECT_EQ(toWide("\xC3"), L"\xFFFD");
  EXPECT_EQ(toWide("\xC0\x80"), L"\xFFFD\xFFFD");
}

TEST(Text, MayHoldNulCharacters) {
  EXPECT_EQ(toUtf8(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
}

TEST(BstrOwner, KeepsNulCharactersAndEmptyTexts) {
  EXPECT_EQ(Bstr(std::wstring_view(L"a\0b", 3)).view(), std::wstring_view(L"a\0b", 3));
  EXPECT_TRUE(Bstr(std::string_view()).view().empty());
  EXPECT_TRUE(viewOf(nullptr).empty());
}

TEST(BstrOwner, MovesItsText) {
  Bstr first(std::string_view("text"));
  const Bstr second(std::move(first));
  EXPECT_EQ(second.view(), L"text");
  EXPECT_EQ(first.get(), nullptr);  // NOLINT(bugprone-use-after-move)
}

TEST(ComPtrOwner, CountsReferences) {
  const auto object = FakeObject::make();
  {
    const ComPtr<IDispatch> second(object.get());
    const ComPtr<IDispatch> third = second;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(object->references(), 3U);
    EXPECT_EQ(third.get(), second.get());
  }
  EXPECT_EQ(object->references(), 1U);
}

TEST(ComPtrOwner, AskedForAnotherInterfaceIsNullWhenThereIsNone) {
  const auto object = FakeObject::make();
  EXPECT_TRUE(ComPtr<IUnknown>(object.get()).query<IDispatch>(IID_IDispatch));
  EXPECT_FALSE(ComPtr<IUnknown>(object.get()).query<IClassFactory>(IID_IClassFactory));
  EXPECT_FALSE(ComPtr<IUnknown>().query<IDispatch>(IID_IDispatch));
  EXPECT_EQ(object->references(), 1U);
}

TEST(ComPtrOwner, ResultPlaceLetsGoOfWhatWasHeld) {
  const auto object = FakeObject::make();
  ComPtr<IDispatch> pointer(object.get());
  EXPECT_EQ(*pointer.put(), nullptr);
  EXPECT_EQ(object->references(), 1U);
}

TEST(VariantOwner, GivesBackTheObjectItHolds) {
  const auto object = FakeObject::make();
  {
    const Variant first = Variant::object(object.get());
    const Variant second = first;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(object->references(), 3U);
    EXPECT_EQ(second.asObject().get(), object.get());
  }
  EXPECT_EQ(object->references(), 1U);
}

TEST(VariantOwner, CopiesReferencesAsReferences) {
  LONG number = 5;
  const Variant reference = Variant::reference(number);
  const Variant copy = reference;  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.vt, VT_BYREF | VT_I4);
  EXPECT_EQ(copy.plVal, &number);
}

TEST(VariantOwner, FindsTheObjectBehindReferences) {
  const auto object = FakeObject::make();
  Variant inner = Variant::object(object.get());
  Variant outer;
  outer.vt = VT_BYREF | VT_VARIANT;
  outer.pvarVal = &inner;
  EXPECT_EQ(outer.asObject().get(), object.get());
  EXPECT_FALSE(Variant::int32(1).asObject());
  EXPECT_FALSE(Variant::object(nullptr).asObject());
}

TEST(VariantOwner, ResolvedCopyIsItsOwn) {
  Variant inner = Variant::text("text");
  Variant outer;
  outer.vt = VT_BYREF | VT_VARIANT;
  outer.pvarVal = &inner;
  const Variant copy = resolved(outer);
  EXPECT_EQ(copy.vt, VT_BSTR);
  EXPECT_NE(copy.bstrVal, inner.bstrVal);
}

TEST(SafeArrayOwner, GivesBackTheObjectsInIt) {
  const auto object = FakeObject::make();
  {
    const SafeArray array(SafeArrayCreateVector(VT_VARIANT, 0, 2));
    const ArrayAccess<VARIANT> access(array.get());
    access.elements()[1] = Variant::object(object.get()).release();
    EXPECT_EQ(object->references(), 2U);
  }
  EXPECT_EQ(object->references(), 1U);
}

TEST(SafeArrayOwner, KnowsItsExtents) {
  SAFEARRAYBOUND bounds[2] = {{3, 1}, {4, -2}};
  const SafeArray array(SafeArrayCreate(VT_I4, 2, bounds));
  EXPECT_EQ(extentOf(array.get(), 1), 3U);
  EXPECT_EQ(extentOf(array.get(), 2), 4U);
  EXPECT_EQ(ArrayAccess<LONG>(array.get()).elements().size(), 12U);
}

}  // namespace
}  // namespace pelorin::test
