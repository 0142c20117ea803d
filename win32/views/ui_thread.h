// What all windows of the component share on their thread: visual styles, the mouse pointer, and
// the knowledge how deep in our own window procedures we are.
//
// Models may change many times while a handler runs. The native controls follow once, when the
// outermost window procedure of ours returns, or when the message loop comes round after a change
// made from outside. What was closed is destroyed only when nothing of ours is on the call stack.
#pragma once

#include <functional>
#include <memory>

#include "controls/screen.h"
#include "win32/views/activation_context.h"

namespace pelorin {

class UiThread {
 public:
  // For the calling thread; `acts` are those that begin in the component's windows. Throws the
  // system's error when it has no room for another window.
  UiThread(HINSTANCE module, Acts& acts);
  ~UiThread();
  UiThread(const UiThread&) = delete;
  UiThread& operator=(const UiThread&) = delete;

  HINSTANCE module() const noexcept { return module_; }
  const ActivationContext& styles() const noexcept { return styles_; }
  UINT controlNameMessage() const noexcept { return controlNameMessage_; }

  // Brings the native controls up to date.
  std::function<void()> onFlush;
  // The outermost window procedure of ours returns.
  std::function<void()> onRest;
  // As the message loop comes round after a request: nothing of the system's controls is on the
  // call stack either.
  std::function<void()> onIdle;
  // Receives the thread's private messages, and lives as long as the thread.
  HWND window() const noexcept;

  void requestFlush() noexcept;
  void requestIdle() noexcept;
  void flush();
  bool insideWindowProcedure() const noexcept { return depth_ > 0; }

  MousePointer pointer() const noexcept { return pointer_; }
  void setPointer(MousePointer pointer) noexcept;
  // Shows the hourglass; false when Windows shall choose the pointer.
  bool showPointer() const noexcept;

  // Counts what of ours is on the call stack; the last one to go lets the thread be idle.
  class Depth {
   public:
    explicit Depth(UiThread& ui) noexcept : ui_(ui) { ++ui_.depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
    ~Depth();

   private:
    UiThread& ui_;
  };

  // One for each entry into a window procedure of ours, which can be an act of the operator.
  class Scope {
   public:
    explicit Scope(UiThread& ui);
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope();

   private:
    UiThread& ui_;
    ActivationContext::Scope styles_;
    Depth depth_;
    Act act_;
  };

  // A message loop that runs inside a handler (a message box, a menu). The handler is on the stack
  // all the while, but models and native controls must agree for the operator.
  class ModalScope {
   public:
    explicit ModalScope(UiThread& ui);
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;
    ~ModalScope();

   private:
    UiThread& ui_;
    ActivationContext::Scope styles_;
    Depth depth_;
    int outerFloor_;
  };

 private:
  class Sink;
  void wake() const noexcept;
  void awake();

  HINSTANCE module_;
  Acts& acts_;
  ActivationContext styles_;
  UINT controlNameMessage_;
  std::unique_ptr<Sink> sink_;
  MousePointer pointer_ = MousePointer::Default;
  int depth_ = 0;
  int floor_ = 0;  // depth of the innermost modal loop
  bool flushWanted_ = false;
  bool flushing_ = false;
  bool idleWanted_ = false;
};

}  // namespace pelorin
