// A host window as add-ins get it: an object with the window's handle.
#pragma once

#include "host/automation/automation_object.h"

namespace pelorin::host {

class WindowObject : public AutomationObject<WindowObject> {
 public:
  explicit WindowObject(HWND window) : window_(window) {}

  static constexpr const wchar_t* sourceName = L"PelorinHost.Window";
  static const Member members[2];

 private:
  Variant caption(const MemberCall& call);
  Variant handle(const MemberCall& call);

  HWND window_;
};

}  // namespace pelorin::host
