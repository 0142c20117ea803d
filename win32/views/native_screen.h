// The screen of Windows: forms become dialogs with the system's own controls, inside a host's
// message loop. All calls come from the thread that made the screen, which owns the windows.
//
//   NativeScreen screen(module);          // the module that holds the code and manifest resource 2
//   screen.setHostWindow(handle);
//   screen.show(form, handle);
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "controls/screen.h"
#include "win32/views/form_window.h"
#include "win32/views/keyboard_hook.h"
#include "win32/views/ui_thread.h"
#include "win32/views/windows_api.h"

namespace pelorin {

class NativeScreen final : public Screen {
 public:
  explicit NativeScreen(HINSTANCE module);
  NativeScreen(const NativeScreen&) = delete;
  NativeScreen& operator=(const NativeScreen&) = delete;
  // Unloads what is still open.
  ~NativeScreen() override;

  // Nothing of ours is on the call stack any more.
  void onRest(std::function<void()> rest) { ui_.onRest = std::move(rest); }
  bool insideWindowProcedure() const noexcept { return ui_.insideWindowProcedure(); }
  // A window that is there for as long as the thread of this screen.
  HWND threadsWindow() const noexcept { return ui_.window(); }
  // Unloads forms whose windows went without a word to us.
  void unloadLost();

  BoxAnswer messageBox(const BoxRequest& request) override;
  MousePointer mousePointer() const override { return ui_.pointer(); }
  void setMousePointer(MousePointer pointer) override { ui_.setPointer(pointer); }
  WindowHandle windowOf(const Form& form) const override;
  void setHostWindow(WindowHandle window) override { host_ = window; }

 protected:
  void createWindow(Form& form, WindowHandle owner) override;
  void presentWindow(Form& form) override;
  void raiseWindow(Form& form) override;
  void passActivation(Form& form, WindowHandle owner) override;
  void destroyWindow(Form& form) override;
  void changeOwner(Form& form, WindowHandle owner) override;

 private:
  FormWindow* find(const Form& form) const;
  void flush();
  void idle();
  HWND boxOwner() const;
  bool belongsToUs(HWND window) const;

  UiThread ui_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  // Windows of unloaded forms, until nothing of theirs can be on the call stack.
  std::vector<std::unique_ptr<FormWindow>> retiredWindows_;
  std::unique_ptr<KeyboardHook> keyboard_;
  WindowHandle host_ = 0;
};

}  // namespace pelorin
