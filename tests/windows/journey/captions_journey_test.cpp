// The picker's captions as an operator edits them: from the context menu, in place, and for good.
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::textOf;
using driver::waitFor;
using testing::HasSubstr;
using testing::Not;

// The file in which the component keeps them; as it was found afterwards.
class CaptionsOnDisk {
 public:
  CaptionsOnDisk() : before_(text()) { std::filesystem::remove(file()); }
  CaptionsOnDisk(const CaptionsOnDisk&) = delete;
  CaptionsOnDisk& operator=(const CaptionsOnDisk&) = delete;
  ~CaptionsOnDisk() {
    std::error_code ignored;
    std::filesystem::remove(file(), ignored);
    if (!before_.empty()) std::ofstream(file(), std::ios::binary) << before_;
  }

  static std::string text() {
    std::ifstream stream(file(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

 private:
  static std::filesystem::path file() {
    std::array<wchar_t, 1024> folder{};
    GetEnvironmentVariableW(L"PELORIN_DIST", folder.data(), static_cast<DWORD>(folder.size()));
    return std::filesystem::path(folder.data()) / L"PelorinCaptions.ini";
  }

  std::string before_;
};

class CaptionsJourney : public Journey {
 protected:
  enum Entry { Customise = 1, EndCustomising = 2 };

  void open() {
    editor = openEditor();
    picker = openPicker(editor, "cmdAddLocation");
  }
  void reopen() {
    clickButton(control(picker, "cmdMain(1)"));
    driver::waitUntilClosed(picker);
    picker = openPicker(editor, "cmdAddLocation");
  }
  static bool menuIsOpen() {
    const HWND menu = FindWindowW(L"#32768", nullptr);
    return menu != nullptr && IsWindowVisible(menu);
  }
  void pick(Entry entry) {
    PostMessageW(picker, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(picker), MAKELPARAM(-1, -1));
    waitFor("context menu", menuIsOpen);
    for (int step = 0; step < entry; ++step) driver::pressKey(picker, VK_DOWN);
    driver::pressKey(picker, VK_RETURN);
    waitFor("end of the context menu", [] { return !menuIsOpen(); });
  }
  HWND box() { return control(picker, "txtCaption"); }
  void edit(const char* name, const std::string& caption, WORD key) {
    clickButton(control(picker, name));
    waitFor("text box", [&] { return driver::isShown(box()); });
    EXPECT_EQ(textOf(box()), textOf(control(picker, name)));
    EXPECT_FALSE(driver::isShown(control(picker, "Label1")));
    driver::replaceText(box(), caption);
    driver::pressKey(box(), key);
    waitFor("end of the text box", [&] { return !driver::isShown(box()); });
  }
  // With the mouse, which first gives a button the keyboard.
  void pressByMouse(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    driver::clickAt(window, driver::middleOf(area));
  }
  HWND keyboard() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(picker, nullptr), &info);
    return info.hwndFocus;
  }
  std::string help() { return textOf(control(picker, "cmdMain(2)")); }
  void waitForFile(const std::string& part, bool holds) {
    waitFor(part,
            [&] { return (CaptionsOnDisk::text().find(part) != std::string::npos) == holds; });
  }

  CaptionsOnDisk captions;
  HWND editor = nullptr;
  HWND picker = nullptr;
};

TEST_F(CaptionsJourney, AnEditedCaptionIsKeptForTheNextPicker) {
  open();
  pick(Customise);
  edit("cmdMain(2)", "&Advice", VK_RETURN);
  EXPECT_EQ(help(), "&Advice");
  EXPECT_EQ(CaptionsOnDisk::text(), "");
  pick(EndCustomising);
  waitForFile("cmdMain(2)=&Advice\r\n", true);
  EXPECT_THAT(CaptionsOnDisk::text(), HasSubstr("[85]\r\n"));
  reopen();
  EXPECT_EQ(help(), "&Advice");
}

TEST_F(CaptionsJourney, EscapeKeepsTheCaptionAndAnEmptyOneBringsBackTheDesigns) {
  open();
  pick(Customise);
  edit("cmdMain(2)", "&Advice", VK_ESCAPE);
  EXPECT_EQ(help(), "&Help");
  edit("cmdMain(2)", "&Advice", VK_RETURN);
  edit("cmdMain(2)", "\b", VK_RETURN);
  EXPECT_EQ(help(), "&Help");
  pick(EndCustomising);
  waitForFile("Version=", true);
  EXPECT_THAT(CaptionsOnDisk::text(), Not(HasSubstr("cmdMain")));
}

TEST_F(CaptionsJourney, AMouseClickGivesTheTextBoxTheKeyboard) {
  open();
  pick(Customise);
  for (const char* name : {"cmdMain(2)", "lblLocation"}) {
    pressByMouse(control(picker, name));
    waitFor(std::string("keyboard for ") + name, [&] { return keyboard() == box(); });
    driver::pressKey(keyboard(), VK_ESCAPE);
    waitFor("end of the text box", [&] { return !driver::isShown(box()); });
  }
}

TEST_F(CaptionsJourney, ButtonsActAgainAfterTheEditing) {
  open();
  pick(Customise);
  edit("cmdMain(1)", "Do&ne", VK_RETURN);
  EXPECT_TRUE(driver::isShown(picker));
  pick(EndCustomising);
  waitForFile("cmdMain(1)=Do&ne\r\n", true);
  clickButton(control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
}

TEST_F(CaptionsJourney, AHostThatCustomisesNothingOffersNoEditing) {
  open();
  pick(Customise);
  edit("cmdMain(2)", "&Advice", VK_RETURN);
  pick(EndCustomising);
  waitForFile("&Advice", true);
  host.ui().run([&] { host.session().settings().customisedDescriptions = false; });
  reopen();
  EXPECT_EQ(help(), "&Help");
  SendMessageW(picker, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(picker), MAKELPARAM(-1, -1));
  EXPECT_FALSE(menuIsOpen());
}

}  // namespace
}  // namespace pelorin::test
