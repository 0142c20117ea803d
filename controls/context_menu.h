// The menu that a right click on a form opens: empty as long as the form offers none.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace pelorin {

struct MenuEntry {
  std::string text;  // with & mnemonic
  std::function<void()> onClick;
  bool enabled = true;
  bool checked = false;
};

class ContextMenu {
 public:
  const std::vector<MenuEntry>& entries() const noexcept { return entries_; }
  void setEntries(std::vector<MenuEntry> entries) { entries_ = std::move(entries); }

  // The operator picks an entry; nothing happens when it is disabled or gone by now.
  void userPick(std::size_t index) const {
    if (index >= entries_.size() || !entries_[index].enabled) return;
    // The handler may well replace the entries.
    const std::function<void()> picked = entries_[index].onClick;
    if (picked) picked();
  }

 private:
  std::vector<MenuEntry> entries_;
};

}  // namespace pelorin
