// Calls from several threads of one host.
#include <functional>
#include <future>
#include <thread>

#include "tests/windows/com/server_fixture.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* wrongThread =
    ": The application called an interface that was marshalled for a different thread. "
    "[-2147417842]";

// A thread of the host that does what it is told and handles messages until it shall end.
class HostThread {
 public:
  HostThread() : thread_([this] { run(); }) { started_.get_future().wait(); }
  HostThread(const HostThread&) = delete;
  HostThread& operator=(const HostThread&) = delete;
  ~HostThread() { end(); }

  // Returns when the thread has done it.
  void perform(std::function<void()> work) {
    std::packaged_task<void()> task(std::move(work));
    std::future<void> done = task.get_future();
    PostThreadMessageW(id_, performMessage, 0, reinterpret_cast<LPARAM>(&task));
    done.get();
  }
  void end() {
    if (!thread_.joinable()) return;
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    thread_.join();
  }

 private:
  static constexpr UINT performMessage = WM_APP + 50;

  void run() {
    OleInitialize(nullptr);
    MSG message{};
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    id_ = GetCurrentThreadId();
    started_.set_value();
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      if (message.hwnd == nullptr && message.message == performMessage) {
        (*reinterpret_cast<std::packaged_task<void()>*>(message.lParam))();
      } else {
        TranslateMessage(&message);
        DispatchMessageW(&message);
      }
    }
    // Without OleUninitialize: the thread ends as one that its host cut off.
  }

  DWORD id_ = 0;
  std::promise<void> started_;
  std::thread thread_;
};

class Threads : public ServerTest {
 protected:
  void handOver() {
    manager->putref_NTConnection(services.get());
    manager->putref_DBConnection(ado.connection.get());
  }
  void raiseOn(HostThread& thread) {
    thread.perform([&] {
      handOver();
      manager->RaiseForm();
      opened = summary();
    });
    ASSERT_NE(opened, nullptr);
  }

  HWND opened = nullptr;
};

TEST_F(Threads, AThreadThatEndedWithTheSummaryOpenLeavesTheComponentUsable) {
  for (int round = 0; round < 3; ++round) {
    HostThread other;
    raiseOn(other);
    other.end();
    EXPECT_FALSE(IsWindow(opened));
    EXPECT_EQ(manager->RaiseForm(), S_OK);
    ASSERT_NE(summary(), nullptr);
    EXPECT_TRUE(IsWindowVisible(summary()));
    closeWindows();
  }
}

TEST_F(Threads, WindowsOfAThreadThatEndedDoNotKeepTheDllLoaded) {
  HostThread other;
  raiseOn(other);
  manager = ComPtr<_TAManager>();
  EXPECT_EQ(dll.canUnloadNow(), S_FALSE);
  other.end();
  EXPECT_EQ(dll.canUnloadNow(), S_OK);
}

TEST_F(Threads, AThreadThatEndedInsideACallLeavesTheComponentUsable) {
  const auto deadly = FakeObject::make();
  deadly->on(L"Security", [](Call&) -> HRESULT { ExitThread(0); });
  std::thread other([&] {
    manager->putref_NTConnection(deadly.get());
    manager->RaiseForm();
  });
  other.join();
  // The reference that the thread took with it.
  manager->Release();
  handOver();
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  EXPECT_NE(summary(), nullptr);
}

TEST_F(Threads, WhileWindowsAreOpenElsewhereMembersTellItAndDoNothing) {
  HostThread other;
  raiseOn(other);
  const std::size_t statements = ado.statements.size();
  services->forgetCalls();
  const BoxWatcher watcher;
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  EXPECT_EQ(manager->Activate(), S_OK);
  EXPECT_EQ(manager->OnEvent(1, 2, nullptr, 3, 4, nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(manager->OnStream(nullptr), S_OK);
  EXPECT_EQ(invoke(L"Install", DISPATCH_METHOD, {Variant::text("path")}), S_OK);
  EXPECT_EQ(manager->UnInstall(), S_OK);
  EXPECT_EQ(manager->Destroy(), S_OK);
  std::vector<std::string> expected;
  for (const char* member :
       {"RaiseForm", "Activate", "OnEvent", "OnStream", "Install", "UnInstall", "Destroy"}) {
    expected.push_back(std::string("Exception in class MorvatPelorin.") + member + wrongThread);
  }
  EXPECT_EQ(watcher.texts(), expected);
  EXPECT_EQ(summary(), nullptr);
  EXPECT_EQ(ado.statements.size(), statements);
  EXPECT_THAT(services->calls(), IsEmpty());
}

TEST_F(Threads, WhileWindowsAreOpenElsewherePropertiesDoNothingInSilence) {
  HostThread other;
  raiseOn(other);
  const BoxWatcher watcher;
  EXPECT_EQ(manager->putref_NTConnection(nullptr), S_OK);
  EXPECT_EQ(manager->putref_DBConnection(services.get()), S_OK);
  EXPECT_EQ(invoke(L"Parent", DISPATCH_PROPERTYPUTREF, {Variant::object(form.get())}), S_OK);
  VARIANT_BOOL inDesign = VARIANT_TRUE;
  EXPECT_EQ(manager->get_InDesign(&inDesign), S_OK);
  EXPECT_EQ(inDesign, VARIANT_FALSE);
  EXPECT_THAT(watcher.texts(), IsEmpty());
  EXPECT_THAT(form->calls(), IsEmpty());
  EXPECT_EQ(services->references(), 2U);
}

TEST_F(Threads, WhoseCallIsInProgressKeepsTheComponent) {
  std::promise<void> inside;
  std::promise<void> refused;
  const auto slow = FakeObject::make();
  slow->on(L"Security", [&](Call& call) {
    inside.set_value();
    refused.get_future().wait();
    return fail(E_FAIL, L"late")(call);
  });
  const BoxWatcher watcher;
  manager->putref_NTConnection(slow.get());
  std::thread other([&] { manager->RaiseForm(); });
  inside.get_future().wait();
  manager->OnStream(nullptr);
  refused.set_value();
  other.join();
  EXPECT_THAT(watcher.texts(), Contains(HasSubstr("MorvatPelorin.OnStream")));
  EXPECT_THAT(watcher.texts(), Contains(HasSubstr(" :late")));
}

TEST_F(Threads, WithNoWindowOpenTheCallingThreadBecomesTheOwner) {
  HostThread other;
  const BoxWatcher watcher;
  for (int round = 0; round < 3; ++round) {
    raiseOn(other);
    SendMessageW(opened, WM_CLOSE, 0, 0);
    EXPECT_EQ(manager->RaiseForm(), S_OK);
    EXPECT_NE(summary(), nullptr);
    closeWindows();
  }
  EXPECT_THAT(watcher.texts(), IsEmpty());
}

TEST_F(Threads, ReferencesStayWhenTheThreadChanges) {
  handOver();
  HostThread other;
  other.perform([&] {
    manager->RaiseForm();
    opened = summary();
  });
  EXPECT_NE(opened, nullptr);
  EXPECT_EQ(services->references(), 2U);
  EXPECT_EQ(ado.connection->references(), 2U);
}

TEST_F(Threads, AWindowThatWentWithoutAWordCountsAsClosed) {
  handOver();
  manager->RaiseForm();
  const HWND lost = summary();
  // A host may subclass what it finds, and not pass everything on.
  SetWindowLongPtrW(lost, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcW));
  DestroyWindow(lost);
  EXPECT_EQ(manager->RaiseForm(), S_OK);
  ASSERT_NE(summary(), nullptr);
  EXPECT_TRUE(IsWindowVisible(summary()));
}

}  // namespace
}  // namespace pelorin::test
