#include "win32/com/com_error.h"

#include <algorithm>
#include <array>
#include <string>

#include "win32/com/bstr.h"
#include "win32/text/system_text.h"

namespace pelorin {

namespace {

struct KnownError {
  HRESULT result;
  std::int32_t number;
  const char* text;
};

constexpr std::array<KnownError, 18> knownErrors{{
    {DISP_E_UNKNOWNNAME, 438, "Object doesn't support this property or method"},
    {DISP_E_MEMBERNOTFOUND, 438, "Object doesn't support this property or method"},
    {DISP_E_TYPEMISMATCH, 13, "Type mismatch"},
    {DISP_E_BADVARTYPE, 13, "Type mismatch"},
    {DISP_E_OVERFLOW, 6, "Overflow"},
    {DISP_E_DIVBYZERO, 11, "Division by zero"},
    {DISP_E_BADINDEX, 9, "Subscript out of range"},
    {DISP_E_ARRAYISLOCKED, 10, "This array is fixed or temporarily locked"},
    {DISP_E_BADPARAMCOUNT, 450, "Wrong number of arguments or invalid property assignment"},
    {DISP_E_PARAMNOTOPTIONAL, 449, "Argument not optional"},
    {DISP_E_PARAMNOTFOUND, 448, "Named argument not found"},
    {E_OUTOFMEMORY, 7, "Out of memory"},
    {E_INVALIDARG, 5, "Invalid procedure call or argument"},
    {E_NOTIMPL, 445, "Object doesn't support this action"},
    {E_NOINTERFACE, 430, "Class doesn't support Automation"},
    {E_ACCESSDENIED, 70, "Permission denied"},
    {RPC_E_WRONG_THREAD, RPC_E_WRONG_THREAD,
     "The application called an interface that was marshalled for a different thread."},
    {REGDB_E_CLASSNOTREG, 429, "ActiveX component can't create object"},
}};

const KnownError* known(HRESULT result) {
  const auto* const found =
      std::find_if(knownErrors.begin(), knownErrors.end(),
                   [result](const KnownError& e) { return e.result == result; });
  return found == knownErrors.end() ? nullptr : found;
}

// Numbers of the control facility are the scripting host's own ones.
std::int32_t numberOf(HRESULT result) {
  if (const KnownError* error = known(result)) return error->number;
  return HRESULT_FACILITY(result) == FACILITY_CONTROL ? HRESULT_CODE(result) : result;
}

std::string textOf(HRESULT result) {
  if (const KnownError* error = known(result)) return error->text;
  const std::string text = systemText(static_cast<DWORD>(result));
  return text.empty() ? "Automation error" : text;
}

}  // namespace

RunTimeError comError(HRESULT result) {
  return {numberOf(result), textOf(result)};
}

HRESULT resultOf(const RunTimeError& error) {
  if (error.number() < 0) return error.number();
  const auto* const found =
      std::find_if(knownErrors.begin(), knownErrors.end(),
                   [&error](const KnownError& e) { return e.number == error.number(); });
  return found == knownErrors.end() ? E_FAIL : found->result;
}

ExceptionInfo::~ExceptionInfo() {
  SysFreeString(info_.bstrSource);
  SysFreeString(info_.bstrDescription);
  SysFreeString(info_.bstrHelpFile);
}

RunTimeError ExceptionInfo::error() {
  if (info_.pfnDeferredFillIn != nullptr) {
    info_.pfnDeferredFillIn(&info_);
    info_.pfnDeferredFillIn = nullptr;
  }
  const HRESULT result = FAILED(info_.scode) ? info_.scode : DISP_E_EXCEPTION;
  const std::int32_t number = info_.wCode != 0 ? info_.wCode : numberOf(result);
  const std::string text = toUtf8(viewOf(info_.bstrDescription));
  return {number, text.empty() ? textOf(result) : text};
}

}  // namespace pelorin
