#include "addin/process_entrance.h"

#include <algorithm>
#include <utility>

#include "base/current_error.h"
#include "win32/com/com_error.h"
#include "win32/views/message_boxes.h"

namespace pelorin {

namespace {

// 0 when the window, and so its thread, is gone.
DWORD threadOf(HWND window) noexcept {
  return window == nullptr ? 0 : GetWindowThreadProcessId(window, nullptr);
}

// One thread at a time takes over.
class Moving {
 public:
  explicit Moving(std::atomic_flag& flag) : flag_(flag) {
    if (flag_.test_and_set()) throw comError(RPC_E_WRONG_THREAD);
  }
  Moving(const Moving&) = delete;
  Moving& operator=(const Moving&) = delete;
  ~Moving() { flag_.clear(); }

 private:
  std::atomic_flag& flag_;
};

}  // namespace

Component& ProcessEntrance::enter() {
  if (!enterAsOwner()) takeOver();
  NativeScreen& screen = tenant_->screen();
  if (calls_ == 1 && !screen.insideWindowProcedure()) screen.unloadLost();
  return tenant_->component();
}

void ProcessEntrance::leave() noexcept {
  if (calls_ == 1 && !tenant_->screen().insideWindowProcedure()) rest();
  --calls_;
}

void ProcessEntrance::tell(const BoxRequest& box) noexcept {
  errorOf([&] { showLoneBox(box); });
}

bool ProcessEntrance::callerOwns() const noexcept {
  return threadOf(ownersWindow_) == GetCurrentThreadId();
}

bool ProcessEntrance::hasOpenWindows() const noexcept {
  return windowsOpen_ && threadOf(ownersWindow_) != 0;
}

bool ProcessEntrance::enterAsOwner() noexcept {
  if (!callerOwns()) return false;
  ++calls_;
  // Another thread may have taken over a moment ago.
  if (callerOwns()) return true;
  --calls_;
  return false;
}

void ProcessEntrance::takeOver() {
  const Moving moving(moving_);
  const HWND before = ownersWindow_;
  const bool ended = before != nullptr && threadOf(before) == 0;
  if (!ended && inUse()) throw comError(RPC_E_WRONG_THREAD);
  std::unique_ptr<Tenant> next = tenantOfCaller();
  // A thread that ended inside a call never leaves it.
  const bool abandoned = ended && calls_ > 0;
  if (ended) {
    calls_ = 0;
    windowsOpen_ = false;
  }
  ownersWindow_ = next->screen().threadsWindow();
  if (inUse()) {
    // The owner came in a moment ago and stays.
    ownersWindow_ = before;
    former_.push_back(std::move(next));
    throw comError(RPC_E_WRONG_THREAD);
  }
  ++calls_;
  replaceTenant(std::move(next), abandoned);
}

std::unique_ptr<Tenant> ProcessEntrance::tenantOfCaller() {
  const auto known = std::find_if(former_.begin(), former_.end(), [](const auto& tenant) {
    return threadOf(tenant->screen().threadsWindow()) == GetCurrentThreadId();
  });
  if (known == former_.end()) {
    auto fresh = std::make_unique<Tenant>();
    fresh->screen().onRest([this] {
      if (calls_ == 0 && callerOwns()) rest();
    });
    return fresh;
  }
  std::unique_ptr<Tenant> tenant = std::move(*known);
  former_.erase(known);
  return tenant;
}

void ProcessEntrance::replaceTenant(std::unique_ptr<Tenant> next, bool abandoned) {
  std::unique_ptr<Tenant> before = std::exchange(tenant_, std::move(next));
  if (before != nullptr) {
    before->module().handReferencesTo(tenant_->module());
    const bool amidst = abandoned || before->screen().insideWindowProcedure();
    // What was at work when its thread ended cannot be taken apart.
    if (amidst) static_cast<void>(before.release());
    if (before != nullptr) former_.push_back(std::move(before));
  }
  forgetEndedThreads();
}

void ProcessEntrance::forgetEndedThreads() {
  std::erase_if(former_,
                [](const auto& tenant) { return threadOf(tenant->screen().threadsWindow()) == 0; });
}

void ProcessEntrance::objectGone() noexcept {
  if (--objects_ > 0 || ownersWindow_ == nullptr) return;
  // A call lets go at its end. Where windows are open on another thread, their end does.
  errorOf([this] { const Visit visit(*this); });
}

// Nothing of the component is on its thread's call stack.
void ProcessEntrance::rest() noexcept {
  const bool open = !tenant_->screen().openForms().empty();
  if (!open && objects_ == 0) {
    tenant_->module().setNTConnection(nullptr);
    tenant_->module().setDBConnection(nullptr);
  }
  windowsOpen_ = open;
}

}  // namespace pelorin
