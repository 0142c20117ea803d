// Starts the reference host.

#include <algorithm>
#include <string>
#include <vector>

#include "base/current_error.h"
#include "host/core/options.h"
#include "host/play/play.h"
#include "host/window/main_window.h"
#include "host/window/message_loop.h"
#include "host/window/output.h"
#include "host/window/single_instance.h"
#include "win32/com/com_error.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

constexpr int failed = 1;
constexpr int wrongOptions = 2;
constexpr int alreadyRunning = 3;

std::vector<std::string> commandLine() {
  int count = 0;
  LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(toUtf8(words[i]));
  LocalFree(words);
  return arguments;
}

// Automation and drag and drop of this thread.
class Apartment {
 public:
  Apartment() { check(OleInitialize(nullptr)); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() { OleUninitialize(); }
};

void loadControls() {
  const INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&wanted);
}

int showWindows(const Options& options, int show) {
  const SingleInstance instance;
  if (!instance.isFirst()) {
    SingleInstance::showFirst();
    showError("The reference host is running already; its window has come to the front.");
    return alreadyRunning;
  }
  MainWindow window(options);
  ShowWindow(window.handle(), show);
  return messageLoop(window.handle());
}

bool isUnattended(const Options& options) {
  return options.play || !options.picturesFolder.empty();
}

int start(const std::vector<std::string>& arguments, int show) {
  const Options options = parseOptions(arguments);
  if (options.help) {
    printLine(usageText());
    return 0;
  }
  const Apartment apartment;
  loadControls();
  return isUnattended(options) ? play(options) : showWindows(options, show);
}

// A program that runs by itself must not wait for somebody to close a box.
int run(int show) noexcept {
  bool unattended = false;
  try {
    const std::vector<std::string> arguments = commandLine();
    unattended = std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
      return argument == "--play" || argument == "--pictures";
    });
    return start(arguments, show);
  } catch (const OptionError& error) {
    unattended ? printError(error.what()) : showError(error.what());
    return wrongOptions;
  } catch (...) {
    const std::string text = currentError().what();
    unattended ? printError(text) : showError(text);
    return failed;
  }
}

}  // namespace

}  // namespace pelorin::host

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int nShowCmd) {
  return pelorin::host::run(nShowCmd);
}
