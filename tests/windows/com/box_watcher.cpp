#include "tests/windows/com/box_watcher.h"

#include <algorithm>
#include <chrono>

#include "driver/find_window.h"

namespace pelorin::test {

namespace {

constexpr std::chrono::milliseconds pause{10};

}  // namespace

BoxWatcher::BoxWatcher(DWORD process) : process_(process), thread_([this] { watch(); }) {}

BoxWatcher::~BoxWatcher() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  ended_.notify_one();
  thread_.join();
}

std::vector<SeenBox> BoxWatcher::boxes() const {
  const std::lock_guard lock(mutex_);
  return boxes_;
}

std::vector<std::string> BoxWatcher::texts() const {
  std::vector<std::string> texts;
  for (const SeenBox& box : boxes()) texts.push_back(box.text);
  return texts;
}

void BoxWatcher::watch() {
  std::unique_lock lock(mutex_);
  while (!ended_.wait_for(lock, pause, [this] { return ending_; })) {
    lock.unlock();
    answerOpenBox();
    lock.lock();
  }
}

void BoxWatcher::answerOpenBox() {
  const std::vector<driver::OpenBox> open = driver::findBoxes(process_);
  const auto box = std::find_if(open.begin(), open.end(), [](const driver::OpenBox& candidate) {
    return candidate.title == "Pelorin";
  });
  if (box == open.end()) {
    answered_ = nullptr;
    return;
  }
  if (box->window != answered_) {
    const std::lock_guard lock(mutex_);
    boxes_.push_back({box->text, GetWindow(box->window, GW_OWNER)});
    answered_ = box->window;
  }
  const HWND button = driver::findChild(
      box->window, [](HWND child) { return driver::classOf(child) == L"Button"; });
  // Again and again: a box that has just come up may not take keys yet.
  PostMessageW(button, WM_KEYDOWN, VK_RETURN, 1);
}

}  // namespace pelorin::test
