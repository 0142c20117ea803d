// What the registry holds about the class: how to find the DLL by the class's id or name, and where
// its type library is.
#pragma once

namespace pelorin {

// For everybody on the machine (needs its administrator), or for the user alone.
enum class Scope { Machine, User };

// Both throw the error of the step that failed. A registration that fails is taken back.
void registerServer(Scope scope);
// Leaves the names that both architectures share while the other one is registered.
void unregisterServer(Scope scope);

}  // namespace pelorin
