// The picker's captions, as the operator edits them.
#include "base/current_error.h"
#include "common/guard.h"
#include "location/f_location.h"

namespace pelorin {

namespace {

constexpr const char* customizingCaption = "Select Locations - Customising Captions";

}  // namespace

void FLocation::LoadCustomResources(std::int16_t& number) {
  guarded(module_, "FLocation.LoadCustomResources", [&] {
    if (!module_.NTConnection()->EnableCustomize()) return;
    Localizer1.setConnection(module_.DBConnection());
    Localizer1.setNumber(number);
    Localizer1.setVersion(PELORIN_VERSION);
    Localizer1.apply();
    Localizer1.setEnabled(true);
  });
}

void FLocation::Localizer1_CustomizeStart() {
  guarded(module_, "FLocation.Localizer1_CustomizeStart", [this] {
    MhStretch1.setDesignMode(true);
    setCustomizing(true);
  });
}

void FLocation::Localizer1_CustomizeEnd() {
  guarded(module_, "FLocation.Localizer1_CustomizeEnd", [this] {
    MhStretch1.setDesignMode(false);
    placeControls();
    const auto error = errorOf([this] { Localizer1.save(); });
    // The buttons act again, whatever became of the captions.
    setCustomizing(false);
    if (error) throw RunTimeError(*error);
  });
}

void FLocation::setCustomizing(bool customizing) {
  m_bCustomizing = customizing;
  m_CustomizeTarget = nullptr;
  setCaption(customizing ? customizingCaption : designCaption);
}

void FLocation::customize(Control& control) {
  m_CustomizeTarget = &control;
  Localizer1.edit(*m_CustomizeTarget, *this);
}

}  // namespace pelorin
