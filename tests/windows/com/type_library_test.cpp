// The type library that the DLL carries is the contract that hosts compile against.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "Pelorin.h"
#include "tests/windows/com/component_dll.h"
#include "win32/com/bstr.h"
#include "win32/com/com_error.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

struct TypeLibrary : ::testing::Test {
  ComPtr<ITypeLib> library;

  TypeLibrary() {
    check(LoadTypeLibEx(ComponentDll::instance().path().c_str(), REGKIND_NONE, library.put()));
  }

  ComPtr<ITypeInfo> type(REFGUID id) {
    ComPtr<ITypeInfo> info;
    check(library->GetTypeInfoOfGuid(id, info.put()));
    return info;
  }
  // The interface as it is called through its table.
  ComPtr<ITypeInfo> tableOf(const ComPtr<ITypeInfo>& dispatch) {
    HREFTYPE reference = 0;
    check(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    ComPtr<ITypeInfo> table;
    check(dispatch->GetRefTypeInfo(reference, table.put()));
    return table;
  }
  static std::wstring nameOf(ITypeInfo* info, MEMBERID member) {
    Bstr name;
    check(info->GetDocumentation(member, name.put(), nullptr, nullptr, nullptr));
    return std::wstring(name.view());
  }
};

struct FunctionEntry {
  std::wstring name;
  INVOKEKIND kind;
  MEMBERID id;
  int slot;
  bool operator==(const FunctionEntry&) const = default;
};

TEST_F(TypeLibrary, HasItsNameVersionAndSystem) {
  Bstr name;
  check(library->GetDocumentation(-1, name.put(), nullptr, nullptr, nullptr));
  EXPECT_EQ(name.view(), L"Pelorin");
  TLIBATTR* attributes = nullptr;
  check(library->GetLibAttr(&attributes));
  EXPECT_EQ(attributes->guid, LIBID_Pelorin);
  EXPECT_EQ(attributes->wMajorVerNum, 1);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  library->ReleaseTLibAttr(attributes);
}

TEST_F(TypeLibrary, ListsTheMembersInTheirOrder) {
  const auto table = tableOf(type(IID__TAManager));
  TYPEATTR* attributes = nullptr;
  check(table->GetTypeAttr(&attributes));
  const UINT count = attributes->cFuncs;
  table->ReleaseTypeAttr(attributes);
  std::vector<FunctionEntry> entries;
  for (UINT i = 0; i < count; ++i) {
    FUNCDESC* function = nullptr;
    check(table->GetFuncDesc(i, &function));
    entries.push_back({nameOf(table.get(), function->memid), function->invkind, function->memid,
                       function->oVft / static_cast<int>(sizeof(void*))});
    table->ReleaseFuncDesc(function);
  }
  EXPECT_THAT(entries, ElementsAre(FunctionEntry{L"InDesign", INVOKE_PROPERTYGET, 1, 7},
                                   FunctionEntry{L"Activate", INVOKE_FUNC, 2, 8},
                                   FunctionEntry{L"Destroy", INVOKE_FUNC, 3, 9},
                                   FunctionEntry{L"Parent", INVOKE_PROPERTYPUTREF, 4, 10},
                                   FunctionEntry{L"NTConnection", INVOKE_PROPERTYPUTREF, 5, 11},
                                   FunctionEntry{L"DBConnection", INVOKE_PROPERTYPUTREF, 6, 12},
                                   FunctionEntry{L"RaiseForm", INVOKE_FUNC, 7, 13},
                                   FunctionEntry{L"OnEvent", INVOKE_FUNC, 8, 14},
                                   FunctionEntry{L"OnStream", INVOKE_FUNC, 9, 15},
                                   FunctionEntry{L"Install", INVOKE_FUNC, 10, 16},
                                   FunctionEntry{L"UnInstall", INVOKE_FUNC, 11, 17}));
}

std::string nameOfType(const TYPEDESC& type) {
  switch (type.vt) {
    case VT_PTR:
      return nameOfType(*type.lptdesc) + "*";
    case VT_SAFEARRAY:
      return "array of " + nameOfType(*type.lptdesc);
    case VT_I4:
      return "I4";
    case VT_BSTR:
      return "BSTR";
    case VT_DATE:
      return "DATE";
    case VT_BOOL:
      return "BOOL";
    case VT_VARIANT:
      return "VARIANT";
    case VT_DISPATCH:
      return "DISPATCH";
    default:
      return std::to_string(type.vt);
  }
}

// "[in] BSTR strValue"
std::string argumentText(const ELEMDESC& argument, const std::wstring& name) {
  const USHORT flags = argument.paramdesc.wParamFlags;
  std::string text = (flags & PARAMFLAG_FIN) != 0 ? "[in] " : "[out] ";
  if ((flags & PARAMFLAG_FRETVAL) != 0) text += "[retval] ";
  return text + nameOfType(argument.tdesc) + " " + toUtf8(name);
}

// Names of a member and its arguments.
std::vector<std::wstring> namesOf(ITypeInfo* info, MEMBERID member) {
  std::array<BSTR, 16> names{};
  UINT count = 0;
  check(info->GetNames(member, names.data(), static_cast<UINT>(names.size()), &count));
  std::vector<std::wstring> texts;
  for (UINT i = 0; i < count; ++i) {
    texts.emplace_back(viewOf(names[i]));
    SysFreeString(names[i]);
  }
  return texts;
}

std::vector<std::string> argumentsOf(ITypeInfo* info, UINT index) {
  FUNCDESC* function = nullptr;
  check(info->GetFuncDesc(index, &function));
  std::vector<std::wstring> names = namesOf(info, function->memid);
  names.resize(static_cast<std::size_t>(function->cParams) + 1);
  std::vector<std::string> arguments;
  for (SHORT i = 0; i < function->cParams; ++i) {
    const auto place = static_cast<std::size_t>(i);
    arguments.push_back(argumentText(function->lprgelemdescParam[i], names[place + 1]));
  }
  info->ReleaseFuncDesc(function);
  return arguments;
}

TEST_F(TypeLibrary, GivesEveryArgumentItsNameTypeAndDirection) {
  const auto table = tableOf(type(IID__TAManager));
  const auto arguments = [&](UINT member) { return argumentsOf(table.get(), member); };
  EXPECT_THAT(arguments(0), ElementsAre("[out] [retval] BOOL* result"));
  EXPECT_THAT(arguments(1), ElementsAre());
  EXPECT_THAT(arguments(2), ElementsAre());
  for (const UINT property : {3U, 4U, 5U}) {
    // Automation gives no names of what a property is set to.
    EXPECT_THAT(arguments(property), ElementsAre(StartsWith("[in] DISPATCH ")));
  }
  EXPECT_THAT(arguments(6), ElementsAre());
  EXPECT_THAT(arguments(7),
              ElementsAre("[in] I4 MessageID", "[in] I4 MessageType", "[in] BSTR EngineName",
                          "[in] DATE DateTimeDT", "[in] DATE DateTimePC", "[in] BSTR Address",
                          "[in] BSTR MessageDescription", "[in] array of VARIANT MessageValues"));
  EXPECT_THAT(arguments(8), ElementsAre("[in] BSTR strValue"));
  EXPECT_THAT(arguments(9), ElementsAre("[in] BSTR SourcePath"));
  EXPECT_THAT(arguments(10), ElementsAre());
}

WORD flagsOf(ITypeInfo* info) {
  TYPEATTR* attributes = nullptr;
  check(info->GetTypeAttr(&attributes));
  const WORD flags = attributes->wTypeFlags;
  info->ReleaseTypeAttr(attributes);
  return flags;
}

TEST_F(TypeLibrary, HasADualInterfaceOfAutomationTypes) {
  const auto info = type(IID__TAManager);
  EXPECT_NE(flagsOf(info.get()) & TYPEFLAG_FDUAL, 0);
  EXPECT_NE(flagsOf(tableOf(info).get()) & TYPEFLAG_FOLEAUTOMATION, 0);
}

TEST_F(TypeLibrary, HasOneClassWithThatInterface) {
  const auto info = type(CLSID_TAManager);
  EXPECT_EQ(nameOf(info.get(), MEMBERID_NIL), L"TAManager");
  HREFTYPE reference = 0;
  check(info->GetRefTypeOfImplType(0, &reference));
  ComPtr<ITypeInfo> implemented;
  check(info->GetRefTypeInfo(reference, implemented.put()));
  EXPECT_EQ(nameOf(implemented.get(), MEMBERID_NIL), L"_TAManager");
  INT flags = 0;
  check(info->GetImplTypeFlags(0, &flags));
  EXPECT_NE(flags & IMPLTYPEFLAG_FDEFAULT, 0);
}

struct FieldEntry {
  std::wstring name;
  std::string type;
  ULONG offset;
  bool operator==(const FieldEntry&) const = default;
};

TEST_F(TypeLibrary, DescribesTheHostsMessageRecord) {
  ComPtr<ITypeInfo> info;
  MEMBERID member = 0;
  USHORT found = 1;
  std::wstring name = L"MorvatMessage";
  check(library->FindName(name.data(), 0, info.put(), &member, &found));
  ASSERT_EQ(found, 1);
  TYPEATTR* attributes = nullptr;
  check(info->GetTypeAttr(&attributes));
  EXPECT_EQ(attributes->typekind, TKIND_RECORD);
  EXPECT_EQ(attributes->cbSizeInstance, sizeof(MorvatMessage));
  EXPECT_NE(attributes->guid, GUID{});
  const UINT count = attributes->cVars;
  info->ReleaseTypeAttr(attributes);
  std::vector<FieldEntry> fields;
  for (UINT i = 0; i < count; ++i) {
    VARDESC* field = nullptr;
    check(info->GetVarDesc(i, &field));
    fields.push_back(
        {nameOf(info.get(), field->memid), nameOfType(field->elemdescVar.tdesc), field->oInst});
    info->ReleaseVarDesc(field);
  }
  EXPECT_THAT(fields,
              ElementsAre(FieldEntry{L"MessageID", "I4", offsetof(MorvatMessage, MessageID)},
                          FieldEntry{L"MessageType", "I4", offsetof(MorvatMessage, MessageType)},
                          FieldEntry{L"EngineName", "BSTR", offsetof(MorvatMessage, EngineName)},
                          FieldEntry{L"DateTimeDT", "DATE", offsetof(MorvatMessage, DateTimeDT)},
                          FieldEntry{L"DateTimePC", "DATE", offsetof(MorvatMessage, DateTimePC)},
                          FieldEntry{L"Address", "BSTR", offsetof(MorvatMessage, Address)},
                          FieldEntry{L"MessageDescription", "BSTR",
                                     offsetof(MorvatMessage, MessageDescription)},
                          FieldEntry{L"MessageValues", "array of VARIANT",
                                     offsetof(MorvatMessage, MessageValues)}));
}

}  // namespace
}  // namespace pelorin::test
