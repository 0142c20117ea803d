// What a played request stands on: the session, its thread, and where the story and the pictures
// go.
#pragma once

#include <functional>
#include <string>

#include "driver/ui_calls.h"
#include "host/session/host_session.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

class Stage {
 public:
  using Tell = std::function<void(const std::string&)>;

  // Pictures are named <folder>\<name><suffix>.png; the folder is made when missing.
  Stage(const driver::UiCalls& ui, HostSession& session, HWND mainWindow, const std::string& folder,
        std::string suffix, Tell tell);

  const driver::UiCalls& ui() const noexcept { return ui_; }
  HostSession& session() const noexcept { return session_; }
  HWND mainWindow() const noexcept { return mainWindow_; }

  // One line of the story.
  void tell(const std::string& text) const { tell_(text); }
  // Tells the next step with its number.
  void step(const std::string& text);
  void picture(HWND window, const std::string& name) const;

 private:
  const driver::UiCalls& ui_;
  HostSession& session_;
  HWND mainWindow_;
  std::wstring folder_;
  std::string suffix_;
  Tell tell_;
  int steps_ = 0;
};

}  // namespace pelorin::host
