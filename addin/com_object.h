// What every COM object of the DLL has in common: counted references, a share in keeping the DLL
// loaded, and a boundary that no exception crosses.
#pragma once

#include <ole2.h>

#include <atomic>
#include <new>
#include <utility>

#include "addin/module.h"
#include "win32/com/com_error.h"

namespace pelorin {

// Runs the body of a COM method or an exported function; an error becomes its HRESULT.
template <class Work>
HRESULT boundary(Work&& work) noexcept {
  try {
    return std::forward<Work>(work)();
  } catch (const RunTimeError& error) {
    return resultOf(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

// The number of references; an object starts with one.
class ReferenceCount {
 public:
  ULONG add() noexcept { return ++count_; }
  ULONG remove() noexcept { return --count_; }

 private:
  std::atomic<ULONG> count_{1};
  ModuleUse use_;
};

}  // namespace pelorin
