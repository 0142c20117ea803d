#include "addin/type_library.h"

#include "addin/module.h"
#include "win32/com/com_error.h"

namespace pelorin {

ComPtr<ITypeLib> ownTypeLibrary() {
  ComPtr<ITypeLib> library;
  check(LoadTypeLibEx(ownPath().c_str(), REGKIND_NONE, library.put()));
  return library;
}

ComPtr<ITypeInfo> ownTypeInfo(REFGUID id) {
  ComPtr<ITypeInfo> info;
  check(ownTypeLibrary()->GetTypeInfoOfGuid(id, info.put()));
  return info;
}

}  // namespace pelorin
