// What the registry holds about the class: how to find the DLL by the class's id or name, and where
// its type library is.
#pragma once

namespace pelorin {

// For everybody on the machine (needs its administrator), or for the user alone.
enum class Scope { Machine, User };

// Both throw the error of the step that failed. After a registration that failed the registry is as
// it was before, also where another copy was registered.
void registerServer(Scope scope);
// Leaves the names that both architectures share while the other one is registered.
void unregisterServer(Scope scope);

}  // namespace pelorin
