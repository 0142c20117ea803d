#include "host/ado/ado_failure.h"

#include "base/run_time_error.h"
#include "database/ado_numbers.h"

namespace pelorin::host {

namespace {

const char* textOf(std::int32_t number) {
  switch (number) {
    case ado::error::invalidArgument:
      return "Arguments are of the wrong type, are out of acceptable range, or are in conflict "
             "with one another.";
    case ado::error::noCurrentRecord:
      return "Either BOF or EOF is True, or the current record has been deleted. Requested "
             "operation requires a current record.";
    case ado::error::notSupported:
      return "Current provider does not support the requested operation.";
    case ado::error::itemNotFound:
      return "Item cannot be found in the collection corresponding to the requested name or "
             "ordinal.";
    case ado::error::objectClosed:
      return "Operation is not allowed when the object is closed.";
    case ado::error::objectOpen:
      return "Operation is not allowed when the object is open.";
    default:
      return "The connection cannot be used to perform this operation. It is either closed or "
             "invalid in this context.";
  }
}

}  // namespace

void failAdo(std::int32_t number) {
  throw RunTimeError(number, textOf(number));
}

}  // namespace pelorin::host
