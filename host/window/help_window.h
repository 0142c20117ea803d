// The host's help: a list of topics and the page of the one that was asked for.
#pragma once

#include <cstdint>
#include <vector>

#include "host/window/window.h"

namespace pelorin::host {

class HelpWindow : public Window {
 public:
  explicit HelpWindow(HWND owner);

  // Shows the page and brings the window to the front; a topic without a page is named.
  void show(std::int16_t topic);

 protected:
  LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void makeControls();
  void layOut() const;
  void showPage(std::int16_t topic) const;

  HWND topics_ = nullptr;
  HWND page_ = nullptr;
};

// The text of a help page in UTF-8, its first line the title; empty when there is none.
std::string helpPage(std::int16_t topic);

}  // namespace pelorin::host
