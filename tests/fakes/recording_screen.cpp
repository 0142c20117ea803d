#include "tests/fakes/recording_screen.h"

namespace pelorin::test {

RecordingScreen::~RecordingScreen() {
  unloadAll();
  collect();
}

BoxAnswer RecordingScreen::messageBox(const BoxRequest& request) {
  boxes.push_back(request);
  journal_.add("box: " + request.text);
  if (duringBox) duringBox(request);
  if (!answers.empty()) {
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  return request.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
}

std::vector<std::string> RecordingScreen::boxTexts() const {
  std::vector<std::string> texts;
  for (const BoxRequest& box : boxes) texts.push_back(box.text);
  return texts;
}

void RecordingScreen::setMousePointer(MousePointer pointer) {
  before("point", nullptr);
  pointer_ = pointer;
  pointers.push_back(pointer);
}

WindowHandle RecordingScreen::windowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? 0 : found->second;
}

void RecordingScreen::createWindow(Form& form, WindowHandle owner) {
  before("create", &form);
  windows_[&form] = next_++;
  owners[form.name()] = owner;
  windowEvents.push_back("create " + form.name());
}

void RecordingScreen::presentWindow(Form& form) {
  windowEvents.push_back("present " + form.name());
  form.Form_Activate();
}

void RecordingScreen::raiseWindow(Form& form) {
  windowEvents.push_back("raise " + form.name());
  form.Form_Activate();
}

void RecordingScreen::destroyWindow(Form& form) {
  before("destroy", &form);
  windows_.erase(&form);
  windowEvents.push_back("destroy " + form.name());
}

void RecordingScreen::changeOwner(Form& form, WindowHandle owner) {
  before("own", &form);
  owners[form.name()] = owner;
}

}  // namespace pelorin::test
