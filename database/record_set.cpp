#include "database/record_set.h"

#include <exception>
#include <utility>

#include "base/text_key.h"

namespace pelorin {

namespace {

constexpr std::size_t blockRows = 500;
constexpr std::int32_t fieldNotFound = 3265;
constexpr std::int32_t noCurrentRow = 3021;

}  // namespace

RecordSet::RecordSet(std::unique_ptr<Cursor> cursor)
    : cursor_(std::move(cursor)), columns_(cursor_->columns()) {}

std::size_t RecordSet::fetchBlock() {
  if (!cursor_) return 0;
  const std::size_t fetched = fetchOrKeepError();
  if (fetched == 0 || pending_) cursor_.reset();
  return fetched;
}

// What came of a row that broke off is dropped.
std::size_t RecordSet::fetchOrKeepError() {
  const std::size_t before = cells_.size();
  try {
    return cursor_->fetch(blockRows, cells_);
  } catch (...) {
    pending_ = std::current_exception();
    const std::size_t width = columns_.size();
    const std::size_t whole = width == 0 ? 0 : (cells_.size() - before) / width;
    cells_.resize(before + whole * width);
    return whole;
  }
}

bool RecordSet::next(SourceLine where) {
  return withLine(where, [this] {
    if (row_ == rows_) {
      cells_.clear();
      row_ = 0;
      rows_ = fetchBlock();
    }
    if (rows_ == 0) {
      if (pending_) std::rethrow_exception(std::exchange(pending_, nullptr));
      return false;
    }
    ++row_;
    return true;
  });
}

void RecordSet::drain() {
  for (std::size_t fetched = fetchBlock(); fetched > 0; fetched = fetchBlock()) rows_ += fetched;
}

void RecordSet::close() {
  cursor_.reset();
  cells_.clear();
  row_ = 0;
  rows_ = 0;
  pending_ = nullptr;
}

const Value& RecordSet::value(int position, SourceLine where) const {
  if (row_ == 0) throw RunTimeError(noCurrentRow, "There is no current record.", where.line());
  const auto column = static_cast<std::size_t>(position);
  if (position < 0 || column >= columns_.size()) {
    throw RunTimeError(
        fieldNotFound,
        "Item cannot be found in the collection: column " + std::to_string(position) + ".",
        where.line());
  }
  return cells_[(row_ - 1) * columns_.size() + column];
}

const Value& RecordSet::value(std::string_view field, SourceLine where) const {
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    if (equalNoCase(columns_[column], field)) return value(static_cast<int>(column), where);
  }
  throw RunTimeError(fieldNotFound,
                     "Item cannot be found in the collection: " + std::string(field) + ".",
                     where.line());
}

}  // namespace pelorin
