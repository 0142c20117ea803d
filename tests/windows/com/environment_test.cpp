// The machine as the component sees it: folder, log, settings files, locale.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "addin/files.h"
#include "addin/windows_environment.h"
#include "base/run_time_error.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

template <class Work>
RunTimeError thrownBy(Work&& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error;
  }
  return {0, "no error"};
}

struct EnvironmentTest : ::testing::Test {
  WindowsEnvironment environment;
  std::string folder = makeFolder("");

  static std::string makeFolder(const std::string& suffix) {
    std::array<wchar_t, MAX_PATH> temporary{};
    GetTempPathW(MAX_PATH, temporary.data());
    const std::wstring path = std::wstring(temporary.data()) + L"pelorin" +
                              std::to_wstring(GetCurrentProcessId()) + toWide(suffix);
    CreateDirectoryW(path.c_str(), nullptr);
    return toUtf8(path);
  }
  ~EnvironmentTest() override {
    for (const char* name : {"log.txt", "set.ini", "data.bin", "data.bin.new"}) {
      DeleteFileW(toWide(folder + "\\" + name).c_str());
    }
    RemoveDirectoryW(toWide(folder).c_str());
  }
  std::string file(const std::string& name) const { return folder + "\\" + name; }
  std::string setting(const std::string& key, unsigned capacity = 201) {
    return environment.privateProfileString("Section", key, "NOTINITIALIZED", capacity,
                                            file("set.ini"));
  }
};

TEST_F(EnvironmentTest, FolderIsThatOfTheModule) {
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
  const std::string whole = toUtf8(path.data());
  EXPECT_EQ(environment.componentFolder(), whole.substr(0, whole.find_last_of('\\')));
}

TEST_F(EnvironmentTest, LinesAreAppendedAndNeverTruncated) {
  EXPECT_TRUE(environment.appendLine(file("log.txt"), "one"));
  EXPECT_TRUE(environment.appendLine(file("log.txt"), "zw\xC3\xB6lf"));
  EXPECT_EQ(environment.readFile(file("log.txt")), "one\r\nzw\xC3\xB6lf\r\n");
}

TEST_F(EnvironmentTest, LinesAreAppendedBesideAnotherWriter) {
  HANDLE other = CreateFileW(toWide(file("log.txt")).c_str(), FILE_APPEND_DATA,
                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS, 0, nullptr);
  EXPECT_TRUE(environment.appendLine(file("log.txt"), "ours"));
  DWORD written = 0;
  WriteFile(other, "theirs\r\n", 8, &written, nullptr);
  EXPECT_TRUE(environment.appendLine(file("log.txt"), "ours"));
  CloseHandle(other);
  EXPECT_EQ(environment.readFile(file("log.txt")), "ours\r\ntheirs\r\nours\r\n");
}

TEST_F(EnvironmentTest, FolderThatIsMissingTakesNoLine) {
  EXPECT_FALSE(environment.appendLine(file("missing\\log.txt"), "one"));
}

TEST_F(EnvironmentTest, MissingFileIsError53WithItsName) {
  for (const std::string& missing : {file("missing"), file("missing\\too")}) {
    const RunTimeError error = thrownBy([&] { environment.readFile(missing); });
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.description(), "File not found: " + missing);
  }
}

TEST_F(EnvironmentTest, FileThatIsThereAndCannotBeReadIsError75WithItsName) {
  files::replace(file("data.bin"), "held");
  HANDLE held = CreateFileW(toWide(file("data.bin")).c_str(), GENERIC_READ, 0, nullptr,
                            OPEN_EXISTING, 0, nullptr);
  const RunTimeError error = thrownBy([&] { environment.readFile(file("data.bin")); });
  CloseHandle(held);
  EXPECT_EQ(error.number(), 75);
  EXPECT_EQ(error.description(), "Path/File access error: " + file("data.bin"));
  EXPECT_EQ(thrownBy([&] { environment.readFile(folder); }).number(), 75);
}

TEST_F(EnvironmentTest, WrittenFileReplacesTheOldOne) {
  files::replace(file("data.bin"), std::string("old and longer"));
  files::replace(file("data.bin"), std::string("new\0!", 5));
  EXPECT_EQ(environment.readFile(file("data.bin")), std::string("new\0!", 5));
  EXPECT_THROW(environment.readFile(file("data.bin.new")), RunTimeError);
}

TEST_F(EnvironmentTest, FileThatCannotBeReplacedKeepsItsContent) {
  files::replace(file("data.bin"), "old");
  HANDLE held = CreateFileW(toWide(file("data.bin")).c_str(), GENERIC_READ, FILE_SHARE_READ,
                            nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(thrownBy([&] { files::replace(file("data.bin"), "new"); }).number(), 75);
  CloseHandle(held);
  EXPECT_EQ(environment.readFile(file("data.bin")), "old");
  EXPECT_THROW(environment.readFile(file("data.bin.new")), RunTimeError);
}

TEST_F(EnvironmentTest, UpdateBeginsWithNothingAndGoesOnWithWhatIsThere) {
  environment.updateFile(file("data.bin"), [](const std::string& old) { return old + "a"; });
  environment.updateFile(file("data.bin"), [](const std::string& old) { return old + "b"; });
  EXPECT_EQ(environment.readFile(file("data.bin")), "ab");
}

TEST_F(EnvironmentTest, UpdateOfAFileThatCannotBeReadChangesNothing) {
  files::replace(file("data.bin"), "old");
  HANDLE held = CreateFileW(toWide(file("data.bin")).c_str(), GENERIC_READ, FILE_SHARE_DELETE,
                            nullptr, OPEN_EXISTING, 0, nullptr);
  bool changed = false;
  const RunTimeError error = thrownBy([&] {
    environment.updateFile(file("data.bin"), [&](const std::string&) {
      changed = true;
      return std::string("new");
    });
  });
  CloseHandle(held);
  EXPECT_FALSE(changed) << "what could not be read must not pass for nothing";
  EXPECT_EQ(error.number(), 75);
  EXPECT_EQ(environment.readFile(file("data.bin")), "old");
}

// Threads stand for the processes of two hosts.
TEST_F(EnvironmentTest, UpdatesOfManyAtOnceLoseNothing) {
  constexpr std::size_t writers = 4;
  constexpr std::size_t updates = 10;
  std::atomic<int> refused = 0;
  std::vector<std::thread> threads;
  for (std::size_t writer = 0; writer < writers; ++writer) {
    threads.emplace_back([&] {
      WindowsEnvironment own;
      for (std::size_t i = 0; i < updates; ++i) {
        try {
          own.updateFile(file("data.bin"), [](const std::string& old) { return old + "x"; });
        } catch (const RunTimeError&) {
          ++refused;
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(refused, 0);
  EXPECT_EQ(environment.readFile(file("data.bin")), std::string(writers * updates, 'x'));
}

TEST_F(EnvironmentTest, ClockNeverGoesBack) {
  const std::uint64_t before = environment.milliseconds();
  EXPECT_GE(environment.milliseconds(), before);
  EXPECT_GE(environment.milliseconds(), GetTickCount64() - 60000);
}

TEST_F(EnvironmentTest, SettingOfAMissingFileOrKeyIsTheFallback) {
  EXPECT_EQ(setting("Key"), "NOTINITIALIZED");
  files::replace(file("set.ini"), "[Section]\r\nOther=1\r\n");
  EXPECT_EQ(setting("Key"), "NOTINITIALIZED");
}

TEST_F(EnvironmentTest, SettingIsReadFromTheAnsiCodePage) {
  files::replace(file("set.ini"), "[Section]\r\nKey=T\xFCr\r\nEmpty=\r\n");
  EXPECT_EQ(setting("Key"), "T\xC3\xBCr");
  EXPECT_EQ(setting("Empty"), "");
}

TEST_F(EnvironmentTest, SettingHasAtMostTwoHundredCharacters) {
  files::replace(file("set.ini"), "[Section]\r\nKey=" + std::string(300, 'x') + "\r\n");
  EXPECT_EQ(setting("Key"), std::string(200, 'x'));
}

TEST_F(EnvironmentTest, SettingIsReadFromAFolderOutsideTheCodePage) {
  RemoveDirectoryW(toWide(folder).c_str());
  folder = makeFolder("\xE6\x89\x89");
  files::replace(file("set.ini"), "[Section]\r\nKey=value\r\n");
  EXPECT_EQ(setting("Key"), "value");
  EXPECT_EQ(setting("Missing"), "NOTINITIALIZED");
}

TEST_F(EnvironmentTest, DateAndTimeAreThoseOfTheUsersLocale) {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  std::array<wchar_t, 128> date{};
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, date.data(), 128,
                  nullptr);
  const std::string text = environment.dateTimeText();
  EXPECT_EQ(text.substr(0, text.find(' ')), toUtf8(date.data()));
  EXPECT_NE(text.find(':'), std::string::npos);
}

}  // namespace
}  // namespace pelorin::test
