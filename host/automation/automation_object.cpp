#include "host/automation/automation_object.h"

#include "base/current_error.h"
#include "win32/com/bstr.h"

namespace pelorin::host {

namespace {

// Numbers of scripting errors travel in the control facility; those of a database are results
// already.
HRESULT resultOf(std::int32_t number) noexcept {
  constexpr std::uint32_t controlFacility = 0x800A0000;
  const auto bits = static_cast<std::uint32_t>(number);
  return number < 0 ? number : static_cast<HRESULT>(controlFacility | (bits & 0xFFFF));
}

}  // namespace

bool sameMember(const wchar_t* left, const wchar_t* right) noexcept {
  return CompareStringOrdinal(left, -1, right, -1, TRUE) == CSTR_EQUAL;
}

HRESULT reportException(const wchar_t* source, EXCEPINFO* info) noexcept {
  const RunTimeError error = currentError();
  if (info == nullptr) return DISP_E_EXCEPTION;
  try {
    *info = EXCEPINFO{};
    info->scode = resultOf(error.number());
    info->bstrSource = Bstr(std::wstring_view(source)).release();
    info->bstrDescription = Bstr(std::string_view(error.what())).release();
  } catch (...) {
    // Without memory for the texts the number has to be enough.
  }
  return DISP_E_EXCEPTION;
}

}  // namespace pelorin::host
