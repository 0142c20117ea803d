// What the members of the add-in class do, one object for each that the host creates. No member
// lets an error out: it ends in a message box, or is passed over where the member says so.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "base/current_error.h"
#include "component/entrance.h"

namespace pelorin {

class TAManagerMembers {
 public:
  explicit TAManagerMembers(Entrance& entrance) : entrance_(entrance) {}

  // Always false: see the counter below.
  bool InDesign() noexcept;
  void Activate() noexcept;
  void Destroy() noexcept;
  void RaiseForm(WindowHandle owner) noexcept;
  void OnEvent() noexcept;
  void OnStream() noexcept;
  void Install() noexcept;
  void UnInstall() noexcept;

  // Sets an object property; every error is passed over.
  template <class Work>
  void assign(Work&& work) noexcept {
    try {
      const Visit visit(entrance_);
      std::forward<Work>(work)(visit.component());
    } catch (...) {
      return;
    }
  }

  // The host's number of an add-in, 0 when it knows none of that name.
  std::int32_t GetAddInID(const std::string& addInObjectName) noexcept;

 private:
  using Work = std::function<void(Component&)>;
  // Runs a member; an error is shown as "Exception in class ...".
  void member(std::string_view name, const Work& work) noexcept;
  void hourglassAndBack(std::string_view name) noexcept;

  Entrance& entrance_;
  std::int16_t designCounter_ = 0;
  bool inDesign_ = false;
};

}  // namespace pelorin
