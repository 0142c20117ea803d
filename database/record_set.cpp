#include "database/record_set.h"

#include <exception>
#include <utility>

#include "base/text_key.h"
#include "database/ado_numbers.h"

namespace pelorin {

namespace {

constexpr std::size_t blockRows = 500;

}  // namespace

RecordSet::RecordSet(std::unique_ptr<Cursor> cursor)
    : cursor_(std::move(cursor)), columns_(cursor_->columns()), followers_(columns_.size()) {}

void RecordSet::fetch(Block& block) {
  block.cells.clear();
  block.rows = cursor_ ? fetchOrKeepError(block.cells) : 0;
  if (block.rows == 0 || pending_) cursor_.reset();
}

// What came of a row that broke off is dropped.
std::size_t RecordSet::fetchOrKeepError(std::vector<Value>& cells) {
  try {
    return cursor_->fetch(blockRows, cells);
  } catch (...) {
    pending_ = std::current_exception();
    const std::size_t width = columns_.size();
    const std::size_t whole = width == 0 ? 0 : cells.size() / width;
    cells.resize(whole * width);
    return whole;
  }
}

void RecordSet::moveToNextBlock() {
  row_ = 0;
  if (drained_.empty()) {
    fetch(block_);
    return;
  }
  block_ = std::move(drained_.front());
  drained_.pop_front();
}

bool RecordSet::next(SourceLine where) {
  return withLine(where, [this] {
    if (row_ == block_.rows) moveToNextBlock();
    if (block_.rows == 0) {
      if (pending_) std::rethrow_exception(std::exchange(pending_, nullptr));
      return false;
    }
    ++row_;
    return true;
  });
}

void RecordSet::drain() {
  while (cursor_) {
    Block& block = drained_.emplace_back();
    fetch(block);
    if (block.rows == 0) drained_.pop_back();
  }
}

void RecordSet::close() {
  cursor_.reset();
  block_ = {};
  drained_.clear();
  row_ = 0;
  pending_ = nullptr;
}

const Value& RecordSet::value(int position, SourceLine where) const {
  if (row_ == 0)
    throw RunTimeError(ado::error::noCurrentRecord, "There is no current record.", where.line());
  const auto column = static_cast<std::size_t>(position);
  if (position < 0 || column >= columns_.size()) {
    throw RunTimeError(
        ado::error::itemNotFound,
        "Item cannot be found in the collection: column " + std::to_string(position) + ".",
        where.line());
  }
  return block_.cells[(row_ - 1) * columns_.size() + column];
}

const Value& RecordSet::value(std::string_view field, SourceLine where) const {
  return value(static_cast<int>(columnOf(field, where)), where);
}

std::size_t RecordSet::columnOf(std::string_view field, SourceLine where) const {
  if (!columns_.empty()) {
    std::size_t& follower = followers_[lastAsked_];
    if (columns_[follower] == field) return lastAsked_ = follower;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      if (equalNoCase(columns_[column], field)) return lastAsked_ = follower = column;
    }
  }
  throw RunTimeError(ado::error::itemNotFound,
                     "Item cannot be found in the collection: " + std::string(field) + ".",
                     where.line());
}

}  // namespace pelorin
