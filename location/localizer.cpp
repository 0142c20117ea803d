#include "location/localizer.h"

#include <utility>

#include "base/current_error.h"
#include "location/caption_file.h"

namespace pelorin {

namespace {

bool hasCaption(const Control& control) {
  return control.kind() == ControlKind::Label || control.kind() == ControlKind::Button;
}

}  // namespace

Localizer::Localizer(Form& form, Environment& environment, CaptionEditor editor)
    : form_(form), environment_(environment), editor_(editor) {
  showEditor(false);
  editor_.box.onValidate = [this] { finishEdit(); };
}

std::string Localizer::path() const {
  return environment_.componentFolder() + "\\PelorinCaptions.ini";
}

CaptionFile Localizer::read() const {
  std::string text;
  const auto error = errorOf(
      [&] { withLine(SourceLine::current(), [&] { text = environment_.readFile(path()); }); });
  // No caption was ever edited.
  if (error && error->number() != error_number::fileNotFound) throw RunTimeError(*error);
  return CaptionFile(text);
}

void Localizer::apply() {
  if (connection_.expired() || !number_ || !version_) {
    throw RunTimeError(error_number::objectNotSet, "Object variable or With block variable not set",
                       __LINE__);
  }
  const CaptionFile captions = read();
  for (Control* control : form_.controls()) {
    if (!hasCaption(*control)) continue;
    design_.try_emplace(control->name(), control->text());
    const std::optional<std::string> caption = captions.value(*number_, control->name());
    if (caption) control->setText(*caption);
  }
}

void Localizer::setEnabled(bool enabled) {
  if (enabled) {
    offer(false);
  } else {
    form_.contextMenu().setEntries({});
  }
}

void Localizer::offer(bool customizing) {
  form_.contextMenu().setEntries(
      {MenuEntry{"&Customise Captions", [this] { start(); }, !customizing},
       MenuEntry{"&End Customising", [this] { end(); }, customizing}});
}

void Localizer::start() {
  offer(true);
  if (onCustomizeStart) onCustomizeStart();
}

void Localizer::end() {
  finishEdit();
  offer(false);
  if (onCustomizeEnd) onCustomizeEnd();
}

void Localizer::edit(Control& target, Form& container) {
  finishEdit();
  target_ = &target;
  focusBefore_ = container.focused();
  editor_.box.setText(target.text());
  showEditor(true);
  container.userFocus(&editor_.box);
}

bool Localizer::keyDown(int keyCode) {
  if (target_ == nullptr || form_.focused() != &editor_.box) return false;
  if (keyCode == key_code::escape) editor_.box.setText(target_->text());
  if (keyCode != key_code::escape && keyCode != key_code::enter) return false;
  finishEdit();
  return true;
}

void Localizer::finishEdit() {
  Control* target = std::exchange(target_, nullptr);
  if (target == nullptr) return;
  const std::string caption = editor_.box.text();
  if (caption != target->text()) takeCaption(*target, caption);
  // A hidden box must not keep the focus.
  if (form_.focused() == &editor_.box) form_.userFocus(focusBefore_);
  showEditor(false);
}

void Localizer::takeCaption(Control& target, const std::string& caption) {
  edited_[target.name()] = caption;
  target.setText(caption.empty() ? design_[target.name()] : caption);
}

void Localizer::showEditor(bool visible) {
  editor_.covered.setVisible(!visible);
  editor_.label.setVisible(visible);
  editor_.box.setVisible(visible);
}

std::string Localizer::withEdited(CaptionFile captions) const {
  for (const auto& [name, caption] : edited_) {
    if (caption.empty()) {
      captions.remove(*number_, name);
    } else {
      captions.setValue(*number_, name, caption);
    }
  }
  captions.setValue(*number_, "Version", *version_);
  return captions.text();
}

void Localizer::save() {
  withLine(SourceLine::current(), [this] {
    environment_.updateFile(
        path(), [this](const std::string& kept) { return withEdited(CaptionFile(kept)); });
  });
  edited_.clear();
}

}  // namespace pelorin
