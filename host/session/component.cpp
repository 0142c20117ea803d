#include "host/session/component.h"

#include <exception>
#include <utility>

#include "base/run_time_error.h"
#include "win32/com/com_error.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

constexpr wchar_t programId[] = L"Pelorin.TAManager";
constexpr wchar_t className[] = L"TAManager";
constexpr std::int32_t fileNotFound = 53;
constexpr std::int32_t cannotCreate = 429;

using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

// Null when the component is not registered, or not for programs of this width.
ComPtr<IDispatch> createRegistered() {
  CLSID id{};
  ComPtr<IDispatch> object;
  if (FAILED(CLSIDFromProgID(programId, &id))) return object;
  if (FAILED(
          CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid()))) {
    return {};
  }
  return object;
}

// The class's identity is read from the type library that the file carries.
CLSID classIn(const std::wstring& file) {
  ComPtr<ITypeLib> library;
  check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.put()));
  std::wstring name = className;
  ComPtr<ITypeInfo> type;
  MEMBERID member = 0;
  USHORT found = 1;
  check(library->FindName(name.data(), 0, type.put(), &member, &found));
  if (found == 0) throw comError(REGDB_E_CLASSNOTREG);
  TYPEATTR* attributes = nullptr;
  check(type->GetTypeAttr(&attributes));
  const CLSID id = attributes->guid;
  type->ReleaseTypeAttr(attributes);
  return id;
}

GetClassObject classObjectFunction(HMODULE module) {
  // A function's address has no other way to its own type.
  const auto address = reinterpret_cast<void (*)()>(GetProcAddress(module, "DllGetClassObject"));
  return reinterpret_cast<GetClassObject>(address);
}

// Full path: the altered search path is defined for nothing else. The module stays loaded as long
// as the process lives, as one loaded by COM may.
ComPtr<IDispatch> createFromFile(const std::wstring& file) {
  if (GetFileAttributesW(file.c_str()) == INVALID_FILE_ATTRIBUTES) {
    throw RunTimeError(fileNotFound, "There is no file " + toUtf8(file));
  }
  const HMODULE module = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (module == nullptr) {
    throw RunTimeError(cannotCreate, toUtf8(file) + " cannot be loaded: " +
                                         comError(HRESULT_FROM_WIN32(GetLastError())).what());
  }
  const GetClassObject getClassObject = classObjectFunction(module);
  if (getClassObject == nullptr) {
    throw RunTimeError(cannotCreate, toUtf8(file) + " is no component");
  }
  ComPtr<IClassFactory> factory;
  check(getClassObject(classIn(file), IID_IClassFactory, factory.putVoid()));
  ComPtr<IDispatch> object;
  check(factory->CreateInstance(nullptr, IID_IDispatch, object.putVoid()));
  return object;
}

}  // namespace

std::wstring fullPath(const std::wstring& file) {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetFullPathNameW(file.c_str(), MAX_PATH, path.data(), nullptr);
  if (length >= path.size()) {
    path.resize(length);
    length = GetFullPathNameW(file.c_str(), length, path.data(), nullptr);
  }
  path.resize(length);
  return path;
}

std::wstring programFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length >= path.size()) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  return path.substr(0, path.find_last_of(L"\\/"));
}

Component::Component(ComPtr<IDispatch> object, std::string origin)
    : object_(std::make_unique<LateBound>(std::move(object))), origin_(std::move(origin)) {}

Component Component::load(const std::string& file) {
  if (file.empty()) {
    if (ComPtr<IDispatch> object = createRegistered()) {
      return {std::move(object), "registered as " + toUtf8(programId)};
    }
  }
  const std::wstring path =
      file.empty() ? programFolder() + L"\\Pelorin.dll" : fullPath(toWide(file));
  return {createFromFile(path), "loaded from " + toUtf8(path)};
}

Component::~Component() {
  if (!object_) return;
  try {
    object_->call(L"Destroy");
  } catch (const std::exception&) {
    // The component is given up in any case.
    return;
  }
}

void Component::connect(IDispatch* window, IDispatch* services, IDispatch* database) {
  object_->putReference(L"Parent", window);
  object_->putReference(L"NTConnection", services);
  object_->putReference(L"DBConnection", database);
}

void Component::raiseForm() {
  object_->call(L"RaiseForm");
}

}  // namespace pelorin::host
