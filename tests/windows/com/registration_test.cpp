// What registering leaves in the registry, and what unregistering takes away.
#include <gtest/gtest.h>
// windows.h comes first: the other needs it.
// clang-format off
#include <windows.h>
#include <sddl.h>
// clang-format on

#include <array>
#include <string>

#include "Pelorin.h"
#include "tests/windows/com/component_dll.h"
#include "win32/com/late_bound.h"

namespace pelorin::test {
namespace {

constexpr REGSAM otherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

std::wstring textOf(REFGUID id) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

const std::wstring classKey = L"Software\\Classes\\CLSID\\" + textOf(CLSID_TAManager);
const std::wstring programKey = L"Software\\Classes\\Pelorin.TAManager";

bool exists(HKEY root, const std::wstring& path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

std::wstring value(HKEY root, const std::wstring& path, const wchar_t* name = nullptr) {
  std::array<wchar_t, 1024> text{};
  DWORD size = sizeof text;
  const LSTATUS status =
      RegGetValueW(root, path.c_str(), name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
  return status == ERROR_SUCCESS ? text.data() : L"(none)";
}

// The class as the other architecture's DLL registers it.
class OtherArchitecture {
 public:
  OtherArchitecture() {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, classKey.c_str(), 0, nullptr, 0, KEY_WRITE | otherView,
                    nullptr, &key, nullptr);
    RegCloseKey(key);
  }
  OtherArchitecture(const OtherArchitecture&) = delete;
  OtherArchitecture& operator=(const OtherArchitecture&) = delete;
  ~OtherArchitecture() { RegDeleteKeyExW(HKEY_LOCAL_MACHINE, classKey.c_str(), otherView, 0); }
};

// A key that nobody may write to while this lives.
class ReadOnlyKey {
 public:
  explicit ReadOnlyKey(const std::wstring& path) {
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_,
                    nullptr);
    allowEverybody(L"D:(A;;KR;;;WD)");
  }
  ReadOnlyKey(const ReadOnlyKey&) = delete;
  ReadOnlyKey& operator=(const ReadOnlyKey&) = delete;
  ~ReadOnlyKey() {
    allowEverybody(L"D:(A;;KA;;;WD)");
    RegCloseKey(key_);
  }

 private:
  void allowEverybody(const wchar_t* rights) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor,
                                                         nullptr);
    RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, descriptor);
    LocalFree(descriptor);
  }

  HKEY key_ = nullptr;
};

void writeText(const std::wstring& path, const wchar_t* name, const std::wstring& text) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, path.c_str(), name, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

struct Registration : ::testing::Test {
  const ComponentDll& dll = ComponentDll::instance();
  ~Registration() override { dll.unregisterServer(); }
};

TEST_F(Registration, NamesTheClassForEverybody) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey + L"\\InprocServer32"), dll.path());
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey + L"\\InprocServer32", L"ThreadingModel"),
            L"Apartment");
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey + L"\\ProgID"), L"Pelorin.TAManager");
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey + L"\\TypeLib"), textOf(LIBID_Pelorin));
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, programKey + L"\\CLSID"), textOf(CLSID_TAManager));
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, programKey + L".1"));
}

TEST_F(Registration, LetsAProgramCreateTheClassByName) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  CLSID id{};
  ASSERT_EQ(CLSIDFromProgID(L"Pelorin.TAManager", &id), S_OK);
  ComPtr<IDispatch> object;
  ASSERT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid()),
            S_OK);
  EXPECT_EQ(valueOf(LateBound(object).call(L"InDesign")), Value(false));
}

TEST_F(Registration, MakesTheTypeLibraryKnown) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  ComPtr<ITypeLib> library;
  EXPECT_EQ(LoadRegTypeLib(LIBID_Pelorin, 1, 0, LOCALE_NEUTRAL, library.put()), S_OK);
  // Calls from another apartment find the library, and with it the automation marshaler.
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE,
                  L"Software\\Classes\\Interface\\" + textOf(IID__TAManager) + L"\\TypeLib"),
            textOf(LIBID_Pelorin));
}

TEST_F(Registration, CanBeRepeated) {
  EXPECT_EQ(dll.registerServer(), S_OK);
  EXPECT_EQ(dll.registerServer(), S_OK);
}

TEST_F(Registration, IsTakenBackWithoutTrace) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  EXPECT_EQ(dll.unregisterServer(), S_OK);
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey));
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, programKey));
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE,
                      L"Software\\Classes\\TypeLib\\" + textOf(LIBID_Pelorin) + L"\\1.0"));
}

TEST_F(Registration, CanBeTakenBackWithoutHavingBeenMade) {
  EXPECT_EQ(dll.unregisterServer(), S_OK);
  EXPECT_EQ(dll.unregisterServer(), S_OK);
}

TEST_F(Registration, KeepsTheSharedNamesWhileTheOtherArchitectureIsRegistered) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  {
    const OtherArchitecture other;
    EXPECT_EQ(dll.unregisterServer(), S_OK);
    EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey));
    EXPECT_EQ(value(HKEY_LOCAL_MACHINE, programKey + L"\\CLSID"), textOf(CLSID_TAManager));
  }
  EXPECT_EQ(dll.unregisterServer(), S_OK);
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, programKey));
}

TEST_F(Registration, ForTheUserAloneStaysInTheUsersPart) {
  ASSERT_EQ(dll.install(true, L"user"), S_OK);
  EXPECT_EQ(value(HKEY_CURRENT_USER, classKey + L"\\InprocServer32"), dll.path());
  EXPECT_TRUE(exists(HKEY_CURRENT_USER, programKey));
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey));
  EXPECT_EQ(dll.install(false, L"user"), S_OK);
  EXPECT_FALSE(exists(HKEY_CURRENT_USER, classKey));
  EXPECT_FALSE(exists(HKEY_CURRENT_USER, programKey));
}

TEST_F(Registration, WithoutRightsIsAccessDenied) {
  ASSERT_EQ(dll.registerServer(), S_OK);
  const ReadOnlyKey key(classKey);
  EXPECT_EQ(dll.registerServer(), E_ACCESSDENIED);
  EXPECT_EQ(dll.install(true, nullptr), E_ACCESSDENIED);
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey + L"\\InprocServer32"), dll.path());
}

TEST_F(Registration, ThatFailsLeavesAnotherCopysAsItWas) {
  const std::wstring server = classKey + L"\\InprocServer32";
  writeText(classKey, nullptr, L"another copy");
  writeText(server, nullptr, L"C:\\other\\Pelorin.dll");
  writeText(server, L"Assembly", L"its own");
  {
    // Written after the class.
    const ReadOnlyKey names(programKey);
    EXPECT_EQ(dll.registerServer(), E_ACCESSDENIED);
  }
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, classKey), L"another copy");
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, server), L"C:\\other\\Pelorin.dll");
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, server, L"Assembly"), L"its own");
  EXPECT_EQ(value(HKEY_LOCAL_MACHINE, server, L"ThreadingModel"), L"(none)");
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey + L"\\ProgID"));
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey + L"\\TypeLib"));
}

TEST_F(Registration, ThatFailsLeavesNothingWhereNothingWas) {
  {
    const ReadOnlyKey names(programKey);
    EXPECT_EQ(dll.registerServer(), E_ACCESSDENIED);
  }
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey));
}

TEST_F(Registration, WithoutAnArgumentIsForEverybody) {
  ASSERT_EQ(dll.install(true, nullptr), S_OK);
  EXPECT_TRUE(exists(HKEY_LOCAL_MACHINE, classKey));
  EXPECT_EQ(dll.install(false, L""), S_OK);
  EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, classKey));
}

}  // namespace
}  // namespace pelorin::test
