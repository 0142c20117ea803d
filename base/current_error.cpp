#include "base/current_error.h"

#include <new>

namespace pelorin {

RunTimeError currentError() noexcept {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RunTimeError(7, "Out of memory");
  } catch (const std::exception& error) {
    return RunTimeError(error_number::internalError, error.what());
  } catch (...) {
    return RunTimeError(error_number::internalError, "Internal error");
  }
}

}  // namespace pelorin
