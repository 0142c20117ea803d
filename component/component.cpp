#include "component/component.h"

#include <exception>
#include <utility>

#include "component/default_pointer.h"

namespace pelorin {

namespace {

constexpr std::int16_t componentType = 91;
constexpr const char* useKey = "Pelorin - Use";
constexpr std::int32_t notPermittedText = 3575;

// A form whose window could not be made must not count as open.
class UnloadOnError {
 public:
  explicit UnloadOnError(Form& form) : form_(form) {}
  UnloadOnError(const UnloadOnError&) = delete;
  UnloadOnError& operator=(const UnloadOnError&) = delete;
  ~UnloadOnError() {
    if (std::uncaught_exceptions() > exceptions_) form_.unload();
  }

 private:
  Form& form_;
  int exceptions_ = std::uncaught_exceptions();
};

}  // namespace

Component::Component(Screen& screen, Environment& environment)
    : module_(screen, environment), catalogue_(module_) {}

Component::~Component() {
  module_.screen().unloadAll();
  module_.screen().collect();
}

void Component::RaiseForm(WindowHandle owner) {
  const DefaultPointerAtEnd pointer(module_.screen());
  // An object without a parent takes no owner away from the boxes of the windows that are open.
  if (owner != 0) module_.screen().setHostWindow(owner);
  if (permitted()) {
    showSummary(owner);
  } else {
    refuse();
  }
}

bool Component::permitted() {
  const HourglassPointer hourglass(module_.screen());
  return module_.MyPermissionGranted(componentType, useKey);
}

// A text that could not be had has been reported; an empty box would say no more.
void Component::refuse() {
  if (const auto text = module_.tryGRS(notPermittedText)) module_.inform(*text);
}

template <class FormType>
void Component::present(std::unique_ptr<FormType>& place, WindowHandle owner) {
  Screen& screen = module_.screen();
  place->onUnloaded = [&screen, &place] { screen.retire(std::move(place)); };
  const UnloadOnError cleanUp(*place);
  screen.show(*place, owner);
}

void Component::showSummary(WindowHandle owner) {
  if (!summary_) {
    summary_ = std::make_unique<frmTASummary>(
        module_, catalogue_, [this](const EditorRequest& request, WindowHandle editorOwner) {
          showEditor(request, editorOwner);
        });
  }
  present(summary_, owner);
}

void Component::showEditor(const EditorRequest& request, WindowHandle owner) {
  if (!editor_) {
    editor_ = std::make_unique<frmTriggerAction>(
        module_, catalogue_, request, [this] { reloadSummary(); },
        [this](LocationTarget& parent, const std::string& mode) { showPicker(parent, mode); });
  }
  present(editor_, owner);
}

// The picker makes its parent the owner of its window by itself.
void Component::showPicker(LocationTarget& parent, const std::string& mode) {
  if (!picker_) picker_ = std::make_unique<FLocation>(module_);
  picker_->setParent(parent);
  picker_->setMode(mode);
  present(picker_, 0);
}

void Component::reloadSummary() {
  if (summary_) summary_->ReloadSummary();
}

}  // namespace pelorin
