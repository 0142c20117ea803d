#include "addin/dll/process.h"

#include "addin/dll/module.h"
#include "addin/dll/windows_environment.h"
#include "win32/views/native_screen.h"

namespace pelorin::process {

namespace {

struct Shared {
  WindowsEnvironment environment;
  NativeScreen screen{ownModule()};
  Component component{screen, environment};
};

Shared* made = nullptr;

Shared& shared() {
  if (made == nullptr) made = new Shared;
  return *made;
}

}  // namespace

Component& component() {
  return shared().component;
}

void setHostWindow(WindowHandle window) {
  shared().screen.setHostWindow(window);
}

bool hasOpenWindows() noexcept {
  return made != nullptr && !made->screen.openForms().empty();
}

}  // namespace pelorin::process
