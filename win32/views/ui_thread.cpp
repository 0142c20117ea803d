#include "win32/views/ui_thread.h"

#include <utility>

#include "base/flag_while.h"
#include "win32/views/firewall.h"
#include "win32/views/native_window.h"
#include "win32/views/private_messages.h"

namespace pelorin {

// A window that is never seen and receives the thread's private messages.
class UiThread::Sink : public NativeWindow {
 public:
  explicit Sink(UiThread& ui) : NativeWindow(ui) {
    attach(CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ui.module(),
                           nullptr));
  }
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;
  ~Sink() override { destroy(); }

 protected:
  std::string designName() const override { return {}; }
  LRESULT onMessage(UINT message, WPARAM w, LPARAM l) override {
    if (message != wakeMessage) return native(message, w, l);
    ui().awake();
    return 0;
  }
};

UiThread::UiThread(HINSTANCE module, Acts& acts)
    : module_(module),
      acts_(acts),
      styles_(module),
      controlNameMessage_(RegisterWindowMessageW(L"WM_GETCONTROLNAME")),
      sink_(std::make_unique<Sink>(*this)) {}

UiThread::~UiThread() = default;

HWND UiThread::window() const noexcept {
  return sink_->hwnd();
}

void UiThread::wake() const noexcept {
  PostMessageW(window(), wakeMessage, 0, 0);
}

// The wake-up message itself is a window procedure of ours: depth 1 is the outermost.
void UiThread::awake() {
  if (depth_ > 1 || !std::exchange(idleWanted_, false)) return;
  if (onIdle) onIdle();
}

void UiThread::requestFlush() noexcept {
  if (std::exchange(flushWanted_, true)) return;
  if (depth_ == floor_) wake();
}

void UiThread::requestIdle() noexcept {
  if (std::exchange(idleWanted_, true)) return;
  if (depth_ == 0) wake();
}

// Following a model can move the focus, which runs handlers, which change models again.
void UiThread::flush() {
  constexpr int plenty = 10;
  if (flushing_) return;
  const FlagWhile flushing(flushing_);
  for (int round = 0; flushWanted_ && round < plenty; ++round) {
    flushWanted_ = false;
    if (onFlush) onFlush();
  }
}

// The default pointer is set even if it was none of ours that is shown: the host may have shown its
// hourglass before it called.
void UiThread::setPointer(MousePointer pointer) noexcept {
  pointer_ = pointer;
  if (!showPointer()) SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

bool UiThread::showPointer() const noexcept {
  if (pointer_ != MousePointer::Hourglass) return false;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return true;
}

UiThread::Depth::~Depth() {
  if (--ui_.depth_ > 0) return;
  if (ui_.idleWanted_) ui_.wake();
  shielded(0, [this] {
    if (ui_.onRest) ui_.onRest();
    return 0;
  });
}

UiThread::Scope::Scope(UiThread& ui) : ui_(ui), styles_(ui.styles()), depth_(ui), act_(ui.acts_) {
  if (ui_.depth_ == ui_.floor_ + 1 && ui_.flushWanted_) ui_.flush();
}

UiThread::Scope::~Scope() {
  if (ui_.depth_ != ui_.floor_ + 1 || !ui_.flushWanted_) return;
  shielded(0, [this] {
    ui_.flush();
    return 0;
  });
}

UiThread::ModalScope::ModalScope(UiThread& ui)
    : ui_(ui), styles_(ui.styles()), depth_(ui), outerFloor_(ui.floor_) {
  ui_.flush();
  ui_.floor_ = ui_.depth_;
}

UiThread::ModalScope::~ModalScope() {
  ui_.floor_ = outerFloor_;
}

}  // namespace pelorin
