#include "host/ado/result_reader.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text_key.h"
#include "database/ado_numbers.h"
#include "host/ado/ado_failure.h"

namespace pelorin::host {

namespace {

constexpr std::size_t blockRows = 100;

}  // namespace

ResultReader::ResultReader(std::unique_ptr<ResultCursor> cursor) : cursor_(std::move(cursor)) {
  fill();
  raiseError();
}

void ResultReader::fill() {
  cells_.clear();
  row_ = 0;
  rows_ = 0;
  if (hasRows() && !error_) fetch();
}

void ResultReader::fetch() {
  try {
    rows_ = cursor_->fetch(blockRows, cells_);
  } catch (const std::exception&) {
    error_ = std::current_exception();
    rows_ = cells_.size() / columns().size();
  }
}

void ResultReader::raiseError() const {
  if (!holdsRow() && error_) std::rethrow_exception(error_);
}

std::span<const Value> ResultReader::row() const {
  raiseError();
  if (atEnd()) failAdo(ado::error::noCurrentRecord);
  return std::span(cells_).subspan(row_ * columns().size(), columns().size());
}

void ResultReader::next() {
  raiseError();
  if (atEnd()) failAdo(ado::error::noCurrentRecord);
  if (++row_ == rows_) fill();
}

std::vector<Value> ResultReader::take(std::int64_t count) {
  raiseError();
  std::vector<Value> taken;
  while (count != 0 && holdsRow()) {
    const std::size_t here = rows_ - row_;
    const std::size_t now = count < 0 ? here : std::min(here, static_cast<std::size_t>(count));
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row_ * columns().size());
    std::move(first, first + static_cast<std::ptrdiff_t>(now * columns().size()),
              std::back_inserter(taken));
    row_ += now;
    if (count > 0) count -= static_cast<std::int64_t>(now);
    if (row_ == rows_) fill();
  }
  return taken;
}

bool ResultReader::nextResult() {
  if (!cursor_->nextResult()) return false;
  error_ = nullptr;
  fill();
  return true;
}

std::size_t columnOf(const std::vector<std::string>& columns, std::string_view name) {
  const auto found =
      std::find_if(columns.begin(), columns.end(),
                   [name](const std::string& column) { return equalNoCase(column, name); });
  if (found == columns.end()) failAdo(ado::error::itemNotFound);
  return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace pelorin::host
