// The type library in the DLL's own resources; nothing need be registered to use it.
#pragma once

#include <ole2.h>

#include "win32/com/com_ptr.h"

namespace pelorin {

ComPtr<ITypeLib> ownTypeLibrary();
ComPtr<ITypeInfo> ownTypeInfo(REFGUID id);

}  // namespace pelorin
