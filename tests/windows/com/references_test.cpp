// When the component lets go of what the host handed over, and what it holds while it asks.
#include "tests/windows/com/server_fixture.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

class References : public ServerTest {
 protected:
  void handOver() {
    manager->putref_NTConnection(services.get());
    manager->putref_DBConnection(ado.connection.get());
  }
  bool held() const { return services->references() > 1 && ado.connection->references() > 1; }
  bool letGo() const { return services->references() == 1 && ado.connection->references() == 1; }
};

TEST_F(References, AreLetGoWithTheLastObject) {
  handOver();
  auto other = create();
  manager = ComPtr<_TAManager>();
  EXPECT_TRUE(held());
  other = ComPtr<_TAManager>();
  EXPECT_TRUE(letGo());
}

TEST_F(References, AreKeptWhileAWindowIsOpenAndLetGoWhenItCloses) {
  handOver();
  manager->RaiseForm();
  manager = ComPtr<_TAManager>();
  EXPECT_TRUE(held());
  SendMessageW(summary(), WM_CLOSE, 0, 0);
  EXPECT_TRUE(letGo());
}

TEST_F(References, AreKeptWhenTheWindowClosesBeforeTheObject) {
  handOver();
  manager->RaiseForm();
  closeWindows();
  EXPECT_TRUE(held());
  manager = ComPtr<_TAManager>();
  EXPECT_TRUE(letGo());
}

TEST_F(References, AreLetGoWhenTheHostDestroysItsWindow) {
  manager->putref_Parent(form.get());
  handOver();
  manager->RaiseForm();
  manager = ComPtr<_TAManager>();
  window.destroy();
  EXPECT_TRUE(letGo());
}

TEST_F(References, AreLetGoAtTheEndOfTheCallThatLostItsObject) {
  const auto host = FakeObject::make();
  host->on(L"Security", [&](Call& call) {
    manager = ComPtr<_TAManager>();
    EXPECT_TRUE(ado.connection->references() > 1);
    return fail(E_FAIL, L"released")(call);
  });
  handOver();
  manager->putref_NTConnection(host.get());
  const BoxWatcher watcher;
  _TAManager* const bare = manager.get();
  EXPECT_EQ(bare->RaiseForm(), S_OK);
  EXPECT_EQ(host->references(), 1U);
  EXPECT_TRUE(letGo());
}

TEST_F(References, AreNotThereForTheNextObject) {
  handOver();
  manager = ComPtr<_TAManager>();
  manager = create();
  const BoxWatcher watcher;
  manager->RaiseForm();
  EXPECT_THAT(watcher.texts(), Contains(HasSubstr("Object variable or With block variable")));
  EXPECT_EQ(summary(), nullptr);
}

// Reads the property of an object that the host lets go of meanwhile.
TEST_F(References, AnObjectLivesUntilItsPropertyIsSet) {
  bool unloadable = true;
  const auto careless = FakeObject::make();
  careless->on(L"hWnd", [&](Call& call) {
    manager = ComPtr<_TAManager>();
    unloadable = dll.canUnloadNow() == S_OK;
    return answer(Variant::int32(HandleToLong(window.get())))(call);
  });
  _TAManager* const bare = manager.get();
  EXPECT_EQ(bare->putref_Parent(careless.get()), S_OK);
  EXPECT_FALSE(unloadable);
  EXPECT_EQ(dll.canUnloadNow(), S_OK);
}

TEST_F(References, BoxesKeepTheirOwnerWhenAnObjectWithoutParentRaises) {
  permitted = false;
  manager->putref_Parent(form.get());
  handOver();
  const BoxWatcher watcher;
  manager->RaiseForm();
  create()->RaiseForm();
  ASSERT_EQ(watcher.boxes().size(), 2U);
  EXPECT_EQ(watcher.boxes()[1].owner, window.get());
}

}  // namespace
}  // namespace pelorin::test
