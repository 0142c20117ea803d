#include "tests/windows/com/box_watcher.h"

#include <array>
#include <chrono>

#include "win32/text/utf16.h"

namespace pelorin::test {

namespace {

constexpr std::chrono::milliseconds pause{10};

// The controls of a dialog as far as they tell a message box from another dialog.
struct Content {
  bool plain = true;  // nothing but texts and buttons
  HWND button = nullptr;
  std::wstring text;
};

std::wstring textOf(HWND window) {
  std::array<wchar_t, 2048> buffer{};
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data()),
                      SMTO_ABORTIFHUNG, 2000, &length);
  return {buffer.data(), length};
}

std::wstring classOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

BOOL CALLBACK addChild(HWND window, LPARAM parameter) {
  Content& content = *reinterpret_cast<Content*>(parameter);
  const std::wstring name = classOf(window);
  if (name == L"Button" && content.button == nullptr) {
    content.button = window;
  } else if (name == L"Static") {
    content.text += textOf(window);
  } else if (name != L"Button") {
    content.plain = false;
  }
  return TRUE;
}

struct Search {
  DWORD process;
  HWND box = nullptr;
  Content content;
};

BOOL CALLBACK examine(HWND window, LPARAM parameter) {
  Search& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (search.process != 0 && process != search.process) return TRUE;
  if (!IsWindowVisible(window) || classOf(window) != L"#32770") return TRUE;
  if (textOf(window) != L"Pelorin") return TRUE;
  Content content;
  EnumChildWindows(window, addChild, reinterpret_cast<LPARAM>(&content));
  if (!content.plain || content.button == nullptr) return TRUE;
  search.box = window;
  search.content = content;
  return FALSE;
}

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
  Search search{process_, nullptr, {}};
  EnumWindows(examine, reinterpret_cast<LPARAM>(&search));
  if (search.box == nullptr) {
    answered_ = nullptr;
    return;
  }
  if (search.box != answered_) {
    const std::lock_guard lock(mutex_);
    boxes_.push_back({toUtf8(search.content.text), GetWindow(search.box, GW_OWNER)});
    answered_ = search.box;
  }
  // Again and again: a box that has just come up may not take keys yet.
  PostMessageW(search.content.button, WM_KEYDOWN, VK_RETURN, 1);
}

}  // namespace pelorin::test
