#include "win32/ado/lent_connection.h"

#include "database/ado_numbers.h"

namespace pelorin {

namespace {

// The class of an SQLState is its first two characters.
constexpr const char* connectionException = "08";

bool isOpen(LateBound& connection) {
  return (toInt32(valueOf(connection.call(L"State"))) & ado::state::open) != 0;
}

bool firstErrorIsOfTheConnection(LateBound& connection) {
  LateBound errors = connection.object(L"Errors");
  if (toInt32(valueOf(errors.call(L"Count"))) == 0) return false;
  LateBound first = errors.item(Variant::int32(0));
  return toText(valueOf(first.call(L"SQLState"))).starts_with(connectionException);
}

}  // namespace

bool LentConnection::isLost() noexcept {
  try {
    return !isOpen(object_) || firstErrorIsOfTheConnection(object_);
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace pelorin
