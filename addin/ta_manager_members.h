// What the members of the add-in class do, one object for each that the host creates. No member
// lets an error out: it ends in a message box, or is passed over where the member says so.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "addin/component.h"
#include "common/guard.h"

namespace pelorin {

class TAManagerMembers {
 public:
  explicit TAManagerMembers(Component& component) : component_(component) {}

  // Always false: see the counter below.
  bool InDesign() noexcept;
  void Activate() noexcept;
  void Destroy() noexcept;
  void RaiseForm(WindowHandle owner) noexcept;
  void OnStream() noexcept;
  void Install() noexcept;
  void UnInstall() noexcept;

  // The host's number of an add-in, 0 when it knows none of that name.
  std::int32_t GetAddInID(const std::string& addInObjectName) noexcept;

 private:
  // Runs a member; an error is shown as "Exception in class ...".
  template <class Work>
  void member(std::string_view name, Work&& work) noexcept {
    try {
      std::forward<Work>(work)();
    } catch (...) {
      showException(name, currentError());
    }
  }
  void showException(std::string_view name, const RunTimeError& error) noexcept;
  void hourglassAndBack(std::string_view name) noexcept;

  Component& component_;
  std::int16_t designCounter_ = 0;
  bool inDesign_ = false;
};

}  // namespace pelorin
