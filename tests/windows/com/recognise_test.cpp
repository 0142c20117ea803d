// What counts as a window and what as an ADO connection.
#include "win32/services/recognise.h"

#include <gtest/gtest.h>
#include <ole2.h>

#include "tests/windows/com/fake_ado.h"
#include "tests/windows/com/test_window.h"
#include "win32/com/ado_ids.h"

namespace pelorin::test {
namespace {

// An object with nothing but IOleWindow.
class SiteObject final : public IOleWindow {
 public:
  explicit SiteObject(HWND window) : window_(window) {}
  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IOleWindow;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 2; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP GetWindow(HWND* window) noexcept override {
    *window = window_;
    return S_OK;
  }
  STDMETHODIMP ContextSensitiveHelp(BOOL) noexcept override { return E_NOTIMPL; }

 private:
  HWND window_;
};

struct WindowObject : ::testing::Test {
  TestWindow window;
  ComPtr<FakeObject> object = FakeObject::make();

  HWND found(const Variant& handle) {
    object->on(L"hWnd", answer(handle));
    return windowOf(object.get());
  }
  Variant asInt32() const { return Variant::int32(HandleToLong(window.get())); }
};

TEST_F(WindowObject, HasAHandleAsInteger) {
  EXPECT_EQ(found(asInt32()), window.get());
}

TEST_F(WindowObject, HasAHandleAsWideInteger) {
  Variant handle;
  handle.vt = VT_I8;
  handle.llVal = reinterpret_cast<INT_PTR>(window.get());
  EXPECT_EQ(found(handle), window.get());
}

TEST_F(WindowObject, HasAHandleAsReal) {
  EXPECT_EQ(found(Variant::real(static_cast<double>(HandleToLong(window.get())))), window.get());
}

TEST_F(WindowObject, IsRecognisedByItsSiteInterface) {
  SiteObject site(window.get());
  EXPECT_EQ(windowOf(&site), window.get());
}

TEST_F(WindowObject, GivesItsTopLevelWindow) {
  const HWND child = window.makeChild();
  EXPECT_EQ(found(Variant::int32(HandleToLong(child))), window.get());
}

TEST_F(WindowObject, IsNotOneWithoutAHandle) {
  EXPECT_EQ(windowOf(object.get()), nullptr);
}

TEST_F(WindowObject, IsNotOneWithAHandleThatIsNone) {
  EXPECT_EQ(found(Variant::int32(0)), nullptr);
  const auto garbage = FakeObject::make();
  garbage->on(L"hWnd", answer(Variant::int32(0x7FFFFFF1)));
  EXPECT_EQ(windowOf(garbage.get()), nullptr);
}

TEST_F(WindowObject, IsNotOneWithAHandleOfAnotherType) {
  EXPECT_EQ(found(Variant::text(std::to_string(HandleToLong(window.get())))), nullptr);
  const auto empty = FakeObject::make();
  empty->on(L"hWnd", answer(Variant()));
  EXPECT_EQ(windowOf(empty.get()), nullptr);
}

TEST_F(WindowObject, IsNotOneOfAnotherProcess) {
  EXPECT_EQ(found(Variant::int32(HandleToLong(GetDesktopWindow()))), nullptr);
}

TEST_F(WindowObject, IsNotOneWhenItsWindowIsGone) {
  const Variant handle = asInt32();
  window.destroy();
  EXPECT_EQ(found(handle), nullptr);
}

TEST_F(WindowObject, IsNotKept) {
  found(asInt32());
  EXPECT_EQ(object->references(), 1U);
}

TEST(AdoConnectionObject, IsOneWithTheInterfaceOfAnyVersion) {
  for (const IID& id : ado::connectionInterfaces) {
    const auto object = FakeObject::make();
    object->answersTo(id);
    EXPECT_TRUE(isAdoConnection(object.get()));
    EXPECT_EQ(object->references(), 1U);
  }
}

TEST(AdoConnectionObject, IsOneWithTheMembersOfOne) {
  const FakeAdo ado;
  EXPECT_TRUE(isAdoConnection(ado.connection.get()));
}

TEST(AdoConnectionObject, IsNotOneWithAPartOfTheMembers) {
  const auto object = FakeObject::make();
  object->on(L"Execute", answer(Variant())).on(L"State", answer(Variant()));
  EXPECT_FALSE(isAdoConnection(object.get()));
}

}  // namespace
}  // namespace pelorin::test
