#include "win32/views/ui_thread.h"

#include <utility>

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

UiThread::UiThread(HINSTANCE module)
    : module_(module),
      styles_(module),
      controlNameMessage_(RegisterWindowMessageW(L"WM_GETCONTROLNAME")) {}

UiThread::~UiThread() = default;

void UiThread::wake() noexcept {
  shielded(0, [this] {
    if (sink_ == nullptr) sink_ = std::make_unique<Sink>(*this);
    PostMessageW(sink_->hwnd(), wakeMessage, 0, 0);
    return 0;
  });
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
  if (std::exchange(flushing_, true)) return;
  for (int round = 0; flushWanted_ && round < plenty; ++round) {
    flushWanted_ = false;
    if (onFlush) onFlush();
  }
  flushing_ = false;
}

void UiThread::setPointer(MousePointer pointer) noexcept {
  if (pointer == std::exchange(pointer_, pointer)) return;
  if (!showPointer()) SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

bool UiThread::showPointer() const noexcept {
  if (pointer_ != MousePointer::Hourglass) return false;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return true;
}

UiThread::Scope::Scope(UiThread& ui) : ui_(ui), styles_(ui.styles()) {
  if (++ui_.depth_ == ui_.floor_ + 1 && ui_.flushWanted_) ui_.flush();
}

UiThread::Scope::~Scope() {
  if (ui_.depth_ == ui_.floor_ + 1 && ui_.flushWanted_) {
    shielded(0, [this] {
      ui_.flush();
      return 0;
    });
  }
  if (--ui_.depth_ == 0 && ui_.idleWanted_) ui_.wake();
}

UiThread::ModalScope::ModalScope(UiThread& ui)
    : ui_(ui), styles_(ui.styles()), outerFloor_(ui.floor_) {
  ++ui_.depth_;
  ui_.flush();
  ui_.floor_ = ui_.depth_;
}

UiThread::ModalScope::~ModalScope() {
  ui_.floor_ = outerFloor_;
  if (--ui_.depth_ == 0 && ui_.idleWanted_) ui_.wake();
}

}  // namespace pelorin
