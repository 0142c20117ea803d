#include "addin/ta_manager.h"

#include "addin/default_pointer.h"

namespace pelorin {

namespace {

constexpr const char* addInObject = "MorvatPelorin";

}  // namespace

// A design environment would assert its way through the counting twice; a built component counts
// once and starts over at each call, so that it never gets to 2.
bool TAManager::InDesign() noexcept {
  ++designCounter_;
  if (designCounter_ == 2) inDesign_ = true;
  designCounter_ = 0;
  return inDesign_;
}

void TAManager::Activate() noexcept {
  hourglassAndBack("Activate");
}

void TAManager::Destroy() noexcept {
  hourglassAndBack("Destroy");
}

void TAManager::Install() noexcept {
  hourglassAndBack("Install");
}

void TAManager::UnInstall() noexcept {
  hourglassAndBack("UnInstall");
}

void TAManager::RaiseForm(WindowHandle owner) noexcept {
  member("RaiseForm", [&] { component_.RaiseForm(owner); });
}

void TAManager::OnStream() noexcept {
  member("OnStream", [&] { component_.module().screen().setMousePointer(MousePointer::Default); });
}

std::int32_t TAManager::GetAddInID(const std::string& addInObjectName) noexcept {
  Module1& module = component_.module();
  return guardedOr(module, "TAManager.GetAddInID", std::int32_t{0}, [&] {
    RecordSet addIns = module.DBConnection()->open(
        "SELECT DISTINCT AddInID FROM ApplicatrionAddIns WHERE AddInObjectName=N'" +
        addInObjectName + "'");
    return addIns.next() ? addIns.int32("AddInID") : 0;
  });
}

void TAManager::showException(std::string_view name, const RunTimeError& error) noexcept {
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

void TAManager::hourglassAndBack(std::string_view name) noexcept {
  member(name, [this] {
    Screen& screen = component_.module().screen();
    const DefaultPointerAtEnd pointer(screen);
    screen.setMousePointer(MousePointer::Hourglass);
  });
}

}  // namespace pelorin
