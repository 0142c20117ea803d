// The type library that the DLL carries is the contract that hosts compile against.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pelorin.h"
#include "tests/windows/com/component_dll.h"
#include "win32/com/bstr.h"
#include "win32/com/com_error.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

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

TEST_F(TypeLibrary, hasItsNameVersionAndSystem) {
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

TEST_F(TypeLibrary, listsTheMembersInTheirOrder) {
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

TEST_F(TypeLibrary, namesTheArgumentsOfOnEvent) {
  const auto info = type(IID__TAManager);
  BSTR names[9]{};
  UINT count = 0;
  check(info->GetNames(8, names, 9, &count));
  std::vector<std::wstring> texts;
  for (UINT i = 0; i < count; ++i) {
    texts.emplace_back(viewOf(names[i]));
    SysFreeString(names[i]);
  }
  EXPECT_THAT(texts,
              ElementsAre(L"OnEvent", L"MessageID", L"MessageType", L"EngineName", L"DateTimeDT",
                          L"DateTimePC", L"Address", L"MessageDescription", L"MessageValues"));
}

WORD flagsOf(ITypeInfo* info) {
  TYPEATTR* attributes = nullptr;
  check(info->GetTypeAttr(&attributes));
  const WORD flags = attributes->wTypeFlags;
  info->ReleaseTypeAttr(attributes);
  return flags;
}

TEST_F(TypeLibrary, hasADualInterfaceOfAutomationTypes) {
  const auto info = type(IID__TAManager);
  EXPECT_NE(flagsOf(info.get()) & TYPEFLAG_FDUAL, 0);
  EXPECT_NE(flagsOf(tableOf(info).get()) & TYPEFLAG_FOLEAUTOMATION, 0);
}

TEST_F(TypeLibrary, hasOneClassWithThatInterface) {
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
  VARTYPE type;
  ULONG offset;
  bool operator==(const FieldEntry&) const = default;
};

TEST_F(TypeLibrary, describesTheHostsMessageRecord) {
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
    fields.push_back({nameOf(info.get(), field->memid), field->elemdescVar.tdesc.vt, field->oInst});
    info->ReleaseVarDesc(field);
  }
  EXPECT_THAT(
      fields,
      ElementsAre(
          FieldEntry{L"MessageID", VT_I4, offsetof(MorvatMessage, MessageID)},
          FieldEntry{L"MessageType", VT_I4, offsetof(MorvatMessage, MessageType)},
          FieldEntry{L"EngineName", VT_BSTR, offsetof(MorvatMessage, EngineName)},
          FieldEntry{L"DateTimeDT", VT_DATE, offsetof(MorvatMessage, DateTimeDT)},
          FieldEntry{L"DateTimePC", VT_DATE, offsetof(MorvatMessage, DateTimePC)},
          FieldEntry{L"Address", VT_BSTR, offsetof(MorvatMessage, Address)},
          FieldEntry{L"MessageDescription", VT_BSTR, offsetof(MorvatMessage, MessageDescription)},
          FieldEntry{L"MessageValues", VT_SAFEARRAY, offsetof(MorvatMessage, MessageValues)}));
}

}  // namespace
}  // namespace pelorin::test
