#include "addin/ta_manager_members.h"

#include "addin/default_pointer.h"

namespace pelorin {

namespace {

constexpr const char* addInObject = "MorvatPelorin";

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
  member("RaiseForm", [&] { component_.RaiseForm(owner); });
}

void TAManagerMembers::OnStream() noexcept {
  member("OnStream", [&] { component_.module().screen().setMousePointer(MousePointer::Default); });
}

std::int32_t TAManagerMembers::GetAddInID(const std::string& addInObjectName) noexcept {
  Module1& module = component_.module();
  return guardedOr(module, "TAManager.GetAddInID", std::int32_t{0}, [&] {
    RecordSet addIns = module.DBConnection()->open(
        "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'" +
        addInObjectName + "'");
    return addIns.next() ? addIns.int32("AddInID") : 0;
  });
}

void TAManagerMembers::showException(std::string_view name, const RunTimeError& error) noexcept {
  try {
    component_.module().screen().messageBox(
        BoxRequest{std::string("Exception in class ") + addInObject + "." + std::string(name) +
                       ": " + error.description() + " [" + std::to_string(error.number()) + "]",
                   BoxIcon::None, BoxButtons::Ok});
  } catch (...) {
    // Nothing is left that could tell the operator.
    return;
  }
}

void TAManagerMembers::hourglassAndBack(std::string_view name) noexcept {
  member(name, [this] {
    Screen& screen = component_.module().screen();
    const DefaultPointerAtEnd pointer(screen);
    screen.setMousePointer(MousePointer::Hourglass);
  });
}

}  // namespace pelorin
