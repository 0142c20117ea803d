#include "component/ta_manager_members.h"

#include "base/current_error.h"
#include "common/guard.h"
#include "component/default_pointer.h"

namespace pelorin {

namespace {

constexpr const char* addInObject = "MorvatPelorin";

BoxRequest exceptionBox(std::string_view member, const RunTimeError& error) {
  return {std::string("Exception in class ") + addInObject + "." + std::string(member) + ": " +
              error.description() + " [" + std::to_string(error.number()) + "]",
          BoxIcon::None, BoxButtons::Ok};
}

void showException(Screen& screen, std::string_view member, const RunTimeError& error) noexcept {
  try {
    screen.messageBox(exceptionBox(member, error));
  } catch (...) {
    // Nothing is left that could tell the operator.
    return;
  }
}

}  // namespace

// A design environment would assert its way through the counting twice; a built component counts
// once and starts over at each call, so that it never gets to 2.
bool TAManagerMembers::InDesign() noexcept {
  ++designCounter_;
  if (designCounter_ == 2) inDesign_ = true;
  designCounter_ = 0;
  return inDesign_;
}

void TAManagerMembers::Activate() noexcept {
  hourglassAndBack("Activate");
}

void TAManagerMembers::Destroy() noexcept {
  hourglassAndBack("Destroy");
}

void TAManagerMembers::Install() noexcept {
  hourglassAndBack("Install");
}

void TAManagerMembers::UnInstall() noexcept {
  hourglassAndBack("UnInstall");
}

void TAManagerMembers::RaiseForm(WindowHandle owner) noexcept {
  member("RaiseForm", [owner](Component& component) { component.RaiseForm(owner); });
}

void TAManagerMembers::OnEvent() noexcept {
  member("OnEvent", [](Component&) {});
}

void TAManagerMembers::OnStream() noexcept {
  member("OnStream", [](Component& component) {
    component.module().screen().setMousePointer(MousePointer::Default);
  });
}

std::int32_t TAManagerMembers::GetAddInID(const std::string& addInObjectName) noexcept {
  std::int32_t number = 0;
  member("GetAddInID", [&](Component& component) {
    Module1& module = component.module();
    guarded(module, "TAManager.GetAddInID", [&] {
      RecordSet addIns = module.DBConnection()->open(
          "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'" +
          addInObjectName + "'");
      if (addIns.next()) number = addIns.int32("AddInID");
    });
  });
  return number;
}

void TAManagerMembers::member(std::string_view name, const Work& work) noexcept {
  try {
    const Visit visit(entrance_);
    const Act act(visit.component().module().screen().acts());
    if (const auto error = errorOf([&] { work(visit.component()); })) {
      showException(visit.component().module().screen(), name, *error);
    }
  } catch (...) {
    const RunTimeError error = currentError();
    errorOf([&] { entrance_.tell(exceptionBox(name, error)); });
  }
}

void TAManagerMembers::hourglassAndBack(std::string_view name) noexcept {
  member(name, [](Component& component) {
    Screen& screen = component.module().screen();
    const DefaultPointerAtEnd pointer(screen);
    screen.setMousePointer(MousePointer::Hourglass);
  });
}

}  // namespace pelorin
