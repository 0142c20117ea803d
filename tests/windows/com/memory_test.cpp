// Texts and arrays that cross the boundary are given back: their number does not grow with the
// number of calls.
#include <gtest/gtest.h>
#include <ole2.h>

#include <atomic>

#include "tests/windows/com/fake_ado.h"
#include "win32/ado/ado_connection.h"
#include "win32/services/late_bound_services.h"

namespace pelorin::test {
namespace {

// Counts the live blocks of COM's allocator. It stays until the process ends: blocks that are alive
// refer to it.
class BlockCounter final : public IMallocSpy {
 public:
  static const BlockCounter& instance() {
    static const BlockCounter& counter = *new BlockCounter;
    return counter;
  }
  BlockCounter(const BlockCounter&) = delete;
  BlockCounter& operator=(const BlockCounter&) = delete;

  int blocks() const noexcept { return blocks_; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IMallocSpy;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() noexcept override { return 2; }
  STDMETHODIMP_(ULONG) Release() noexcept override { return 1; }
  STDMETHODIMP_(SIZE_T) PreAlloc(SIZE_T size) noexcept override { return size; }
  STDMETHODIMP_(void*) PostAlloc(void* block) noexcept override {
    if (block != nullptr) ++blocks_;
    return block;
  }
  STDMETHODIMP_(void*) PreFree(void* block, BOOL) noexcept override {
    if (block != nullptr) --blocks_;
    return block;
  }
  STDMETHODIMP_(void) PostFree(BOOL) noexcept override {}
  STDMETHODIMP_(SIZE_T)
  PreRealloc(void* block, SIZE_T size, void** newBlock, BOOL) noexcept override {
    *newBlock = block;
    return size;
  }
  STDMETHODIMP_(void*) PostRealloc(void* block, BOOL) noexcept override { return block; }
  STDMETHODIMP_(void*) PreGetSize(void* block, BOOL) noexcept override { return block; }
  STDMETHODIMP_(SIZE_T) PostGetSize(SIZE_T size, BOOL) noexcept override { return size; }
  STDMETHODIMP_(void*) PreDidAlloc(void* block, BOOL) noexcept override { return block; }
  STDMETHODIMP_(int) PostDidAlloc(void*, BOOL, int answer) noexcept override { return answer; }
  STDMETHODIMP_(void) PreHeapMinimize() noexcept override {}
  STDMETHODIMP_(void) PostHeapMinimize() noexcept override {}

 private:
  BlockCounter() { CoRegisterMallocSpy(this); }
  ~BlockCounter() = default;

  std::atomic<int> blocks_ = 0;
};

// How many blocks 100 further calls leave behind, once the system's cache of texts is warm.
template <class Work>
int leftBehind(Work&& work) {
  const BlockCounter& counter = BlockCounter::instance();
  for (int i = 0; i < 100; ++i) work();
  const int before = counter.blocks();
  for (int i = 0; i < 100; ++i) work();
  return counter.blocks() - before;
}

TEST(Memory, CounterSeesWhatIsLeftBehind) {
  std::vector<BSTR> kept;
  EXPECT_EQ(leftBehind([&] { kept.push_back(SysAllocString(L"kept")); }), 100);
  for (BSTR text : kept) SysFreeString(text);
}

TEST(Memory, CallsOfTheServicesLeaveNothingBehind) {
  const auto host = FakeObject::make();
  host->on(L"GRS", answer(Variant::text("a text"))).on(L"OperatorID", fail(E_FAIL, L"failed"));
  const auto services = std::make_shared<LateBoundServices>(ComPtr<IDispatch>(host.get()));
  EXPECT_EQ(leftBehind([&] {
              HostServices& contract = *services;
              contract.GRS(5, {"one", "two"});
              EXPECT_THROW(contract.OperatorID(), RunTimeError);
            }),
            0);
}

TEST(Memory, ReadingRowsLeavesNothingBehind) {
  FakeAdo ado;
  ado.give("select", {{"ID", "Name"}, {{Variant::int32(1), Variant::text("a name")}}});
  const auto connection = std::make_shared<AdoConnection>(ComPtr<IDispatch>(ado.connection.get()));
  EXPECT_EQ(leftBehind([&] {
              RecordSet rows = connection->Connection::open("select");
              while (rows.next()) EXPECT_EQ(rows.text("Name"), "a name");
            }),
            0);
}

}  // namespace
}  // namespace pelorin::test
