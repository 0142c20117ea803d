#include "win32/ado/ado_cursor.h"

#include "database/ado_numbers.h"
#include "win32/com/com_error.h"
#include "win32/com/safe_array.h"

namespace pelorin {

namespace {

// Far more than a procedure's row counts, and soon reached by a provider that goes round in
// circles.
constexpr int longestChain = 10000;

bool isClosed(LateBound& rows) {
  return toInt32(valueOf(rows.call(L"State"))) == ado::state::closed;
}

// A procedure that writes before it reads first answers with row counts, as closed record sets.
LateBound firstWithRows(LateBound rows) {
  for (int passed = 0; isClosed(rows); ++passed) {
    const Variant next = rows.call(L"NextRecordset");
    if (!next.asObject() || passed == longestChain) {
      throw RunTimeError(ado::error::objectClosed,
                         "Operation is not allowed when the object is closed.");
    }
    rows = objectIn(next);
  }
  return rows;
}

std::vector<std::string> columnNames(LateBound& rows) {
  LateBound fields = rows.object(L"Fields");
  const std::int32_t count = toInt32(valueOf(fields.call(L"Count")));
  std::vector<std::string> names;
  for (std::int32_t i = 0; i < count; ++i) {
    LateBound field = fields.item(Variant::int32(i));
    names.push_back(toText(valueOf(field.call(L"Name"))));
  }
  return names;
}

// A column that nobody reads may hold what it likes.
Value cellValue(const VARIANT& cell) {
  try {
    return valueOf(cell);
  } catch (const RunTimeError&) {
    return Unreadable{};
  }
}

}  // namespace

OpenRows::~OpenRows() {
  try {
    rows.call(L"Close");
  } catch (const std::exception&) {
    // The rows have been read, or their error has been told.
    return;
  }
}

AdoCursor::AdoCursor(LentConnection connection, LateBound rows)
    : connection_(std::move(connection)),
      open_{firstWithRows(std::move(rows))},
      columns_(columnNames(open_.rows)) {}

std::size_t AdoCursor::fetch(std::size_t rows, std::vector<Value>& cells) {
  return connection_.watched([&] { return fetchBlock(rows, cells); });
}

std::size_t AdoCursor::fetchBlock(std::size_t rows, std::vector<Value>& cells) {
  if (toBoolean(valueOf(open_.rows.call(L"EOF")))) return 0;
  const Variant block =
      open_.rows.call(L"GetRows", {Variant::int32(static_cast<std::int32_t>(rows))});
  if (block.vt != (VT_ARRAY | VT_VARIANT)) throw comError(DISP_E_TYPEMISMATCH);
  if (SafeArrayGetDim(block.parray) != 2 || extentOf(block.parray, 1) != columns_.size()) {
    throw comError(DISP_E_TYPEMISMATCH);
  }
  const std::size_t fetched = extentOf(block.parray, 2);
  const ArrayAccess<const VARIANT> access(block.parray);
  for (const VARIANT& cell : access.elements()) cells.push_back(cellValue(cell));
  return fetched;
}

}  // namespace pelorin
