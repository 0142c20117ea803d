#include "addin/call_arguments.h"

namespace pelorin {

namespace {

// Positional arguments come last first, after the named ones.
std::size_t placeOf(const DISPPARAMS& parameters, UINT position) {
  if (position < parameters.cNamedArgs) {
    return static_cast<std::size_t>(parameters.rgdispidNamedArgs[position]);
  }
  return parameters.cArgs - 1 - position;
}

HRESULT convert(const VARIANT& argument, VARTYPE type, Variant& value) {
  value = resolved(argument);
  if (type == anyType || value.vt == type) return S_OK;
  if (value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND) return DISP_E_PARAMNOTOPTIONAL;
  return VariantChangeType(&value, &value, 0, type);
}

}  // namespace

HRESULT CallArguments::take(const DISPPARAMS& parameters, std::span<const VARTYPE> types,
                            UINT& position) {
  if (parameters.cArgs != types.size()) return DISP_E_BADPARAMCOUNT;
  values_.assign(types.size(), Variant());
  for (position = 0; position < parameters.cArgs; ++position) {
    const std::size_t place = placeOf(parameters, position);
    if (place >= types.size()) return DISP_E_PARAMNOTFOUND;
    const HRESULT result = convert(parameters.rgvarg[position], types[place], values_[place]);
    if (FAILED(result)) return result;
  }
  return S_OK;
}

}  // namespace pelorin
