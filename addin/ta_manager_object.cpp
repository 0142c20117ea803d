#include "addin/ta_manager_object.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "addin/process.h"
#include "addin/type_library.h"
#include "win32/ado/ado_connection.h"
#include "win32/services/late_bound_services.h"
#include "win32/services/recognise.h"

namespace pelorin {

// Hosts hold records of this shape; the type library of each architecture describes its own.
static_assert(sizeof(MorvatMessage) == (sizeof(void*) == 8 ? 56 : 48));
static_assert(offsetof(MorvatMessage, EngineName) == 8);
static_assert(offsetof(MorvatMessage, DateTimeDT) == 16);
static_assert(offsetof(MorvatMessage, DateTimePC) == 24);
static_assert(offsetof(MorvatMessage, Address) == 32);
static_assert(offsetof(MorvatMessage, MessageDescription) == 32 + sizeof(void*));
static_assert(offsetof(MorvatMessage, MessageValues) == 32 + 2 * sizeof(void*));

namespace {

// As in the type library.
enum MemberId : DISPID {
  inDesignId = 1,
  activateId,
  destroyId,
  parentId,
  ntConnectionId,
  dbConnectionId,
  raiseFormId,
  onEventId,
  onStreamId,
  installId,
  unInstallId,
};

constexpr std::array<VARTYPE, 8> eventTypes{VT_I4,   VT_I4,   VT_BSTR, VT_DATE,
                                            VT_DATE, VT_BSTR, VT_BSTR, anyType};
constexpr std::array<VARTYPE, 1> textType{VT_BSTR};

HRESULT callOnEvent(TAManagerObject& object, const CallArguments& arguments) {
  const Variant& values = arguments[7];
  return object.OnEvent(arguments[0].lVal, arguments[1].lVal, arguments[2].bstrVal,
                        arguments[3].date, arguments[4].date, arguments[5].bstrVal,
                        arguments[6].bstrVal,
                        values.vt == (VT_ARRAY | VT_VARIANT) ? values.parray : nullptr);
}

struct Method {
  DISPID id;
  std::span<const VARTYPE> types;
  HRESULT (*call)(TAManagerObject&, const CallArguments&);
};

constexpr std::array<Method, 7> methods{{
    {activateId,
     {},
     [](TAManagerObject& object, const CallArguments&) { return object.Activate(); }},
    {destroyId, {}, [](TAManagerObject& object, const CallArguments&) { return object.Destroy(); }},
    {raiseFormId,
     {},
     [](TAManagerObject& object, const CallArguments&) { return object.RaiseForm(); }},
    {onEventId, eventTypes, callOnEvent},
    {onStreamId, textType,
     [](TAManagerObject& object, const CallArguments& arguments) {
       return object.OnStream(arguments[0].bstrVal);
     }},
    {installId, textType,
     [](TAManagerObject& object, const CallArguments& arguments) {
       return object.Install(arguments[0].bstrVal);
     }},
    {unInstallId,
     {},
     [](TAManagerObject& object, const CallArguments&) { return object.UnInstall(); }},
}};

bool isObjectProperty(DISPID id) {
  return id == parentId || id == ntConnectionId || id == dbConnectionId;
}

}  // namespace

TAManagerObject::TAManagerObject() : manager_(process::entrance()) {}

STDMETHODIMP TAManagerObject::QueryInterface(REFIID id, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID__TAManager) {
    *object = static_cast<_TAManager*>(this);
  } else if (id == IID_IProvideClassInfo) {
    *object = static_cast<IProvideClassInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) TAManagerObject::AddRef() noexcept {
  return references_.add();
}

STDMETHODIMP_(ULONG) TAManagerObject::Release() noexcept {
  const ULONG left = references_.remove();
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP TAManagerObject::get_InDesign(VARIANT_BOOL* result) noexcept {
  if (result == nullptr) return E_POINTER;
  *result = manager_.InDesign() ? VARIANT_TRUE : VARIANT_FALSE;
  return S_OK;
}

// The host may let go of the object while a box is open.
template <class Work>
HRESULT TAManagerObject::member(Work&& work) noexcept {
  const ComPtr<_TAManager> self(this);
  std::forward<Work>(work)(manager_);
  return S_OK;
}

STDMETHODIMP TAManagerObject::Activate() noexcept {
  return member([](TAManagerMembers& manager) { manager.Activate(); });
}

STDMETHODIMP TAManagerObject::Destroy() noexcept {
  return member([](TAManagerMembers& manager) { manager.Destroy(); });
}

STDMETHODIMP TAManagerObject::putref_Parent(IDispatch* obj) noexcept {
  return set(parentId, obj);
}

STDMETHODIMP TAManagerObject::putref_NTConnection(IDispatch* obj) noexcept {
  return set(ntConnectionId, obj);
}

STDMETHODIMP TAManagerObject::putref_DBConnection(IDispatch* obj) noexcept {
  return set(dbConnectionId, obj);
}

STDMETHODIMP TAManagerObject::RaiseForm() noexcept {
  const auto owner = reinterpret_cast<WindowHandle>(liveWindow(parent_));
  return member([owner](TAManagerMembers& manager) { manager.RaiseForm(owner); });
}

STDMETHODIMP TAManagerObject::OnEvent(LONG, LONG, BSTR, DATE, DATE, BSTR, BSTR,
                                      SAFEARRAY*) noexcept {
  return member([](TAManagerMembers& manager) { manager.OnEvent(); });
}

STDMETHODIMP TAManagerObject::OnStream(BSTR) noexcept {
  return member([](TAManagerMembers& manager) { manager.OnStream(); });
}

STDMETHODIMP TAManagerObject::Install(BSTR) noexcept {
  return member([](TAManagerMembers& manager) { manager.Install(); });
}

STDMETHODIMP TAManagerObject::UnInstall() noexcept {
  return member([](TAManagerMembers& manager) { manager.UnInstall(); });
}

// The host may let go of either object while its own one is asked what it is.
HRESULT TAManagerObject::set(DISPID id, IUnknown* object) noexcept {
  const ComPtr<IUnknown> held(object);
  return member([&](TAManagerMembers& manager) {
    manager.assign([&](Component& component) {
      if (id == parentId) setParent(object);
      if (id == ntConnectionId) setServices(component.module(), held);
      if (id == dbConnectionId) setDatabase(component.module(), held);
    });
  });
}

void TAManagerObject::setParent(IUnknown* object) {
  const HWND window = object == nullptr ? nullptr : windowOf(object);
  if (window != nullptr) parent_ = window;
}

void TAManagerObject::setServices(Module1& module, const ComPtr<IUnknown>& object) {
  ComPtr<IDispatch> services = object.query<IDispatch>(IID_IDispatch);
  module.setNTConnection(services ? std::make_shared<LateBoundServices>(std::move(services))
                                  : nullptr);
}

void TAManagerObject::setDatabase(Module1& module, const ComPtr<IUnknown>& object) {
  if (!object || !isAdoConnection(object.get())) return;
  ComPtr<IDispatch> connection = object.query<IDispatch>(IID_IDispatch);
  if (connection) module.setDBConnection(std::make_shared<AdoConnection>(std::move(connection)));
}

HRESULT TAManagerObject::assign(DISPID id, const DISPPARAMS& parameters) {
  if (parameters.cArgs != 1) return DISP_E_BADPARAMCOUNT;
  const Variant value = resolved(parameters.rgvarg[0]);
  const bool object = value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN;
  return object ? set(id, value.punkVal) : S_OK;
}

HRESULT TAManagerObject::call(DISPID id, const DISPPARAMS& parameters, UINT& argument) {
  const auto* const method = std::find_if(methods.begin(), methods.end(),
                                          [id](const Method& known) { return known.id == id; });
  if (method == methods.end()) return DISP_E_MEMBERNOTFOUND;
  CallArguments arguments;
  const HRESULT taken = arguments.take(parameters, method->types, argument);
  return FAILED(taken) ? taken : method->call(*this, arguments);
}

STDMETHODIMP TAManagerObject::Invoke(DISPID id, REFIID reserved, LCID, WORD kind,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                                     UINT* argument) noexcept {
  if (reserved != GUID{}) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_INVALIDARG;
  UINT unused = 0;
  return boundary([&]() -> HRESULT {
    if (result != nullptr) VariantInit(result);
    const bool assignment = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (assignment) return isObjectProperty(id) ? assign(id, *parameters) : DISP_E_MEMBERNOTFOUND;
    if (id == inDesignId && (kind & DISPATCH_PROPERTYGET) != 0)
      return readInDesign(*parameters, result);
    if ((kind & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
    return call(id, *parameters, argument == nullptr ? unused : *argument);
  });
}

HRESULT TAManagerObject::readInDesign(const DISPPARAMS& parameters, VARIANT* result) {
  if (parameters.cArgs != 0) return DISP_E_BADPARAMCOUNT;
  VARIANT_BOOL answer = VARIANT_FALSE;
  const HRESULT read = get_InDesign(&answer);
  if (result != nullptr) {
    result->vt = VT_BOOL;
    result->boolVal = answer;
  }
  return read;
}

ITypeInfo* TAManagerObject::typeInfo() {
  if (!typeInfo_) typeInfo_ = ownTypeInfo(IID__TAManager);
  return typeInfo_.get();
}

STDMETHODIMP TAManagerObject::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP TAManagerObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return boundary([&] {
    *info = ComPtr<ITypeInfo>(typeInfo()).release();
    return S_OK;
  });
}

STDMETHODIMP TAManagerObject::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept {
  if (reserved != GUID{}) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr) return E_POINTER;
  return boundary([&] { return typeInfo()->GetIDsOfNames(names, count, ids); });
}

STDMETHODIMP TAManagerObject::GetClassInfo(ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  return boundary([&] {
    *info = ownTypeInfo(CLSID_TAManager).release();
    return S_OK;
  });
}

}  // namespace pelorin
