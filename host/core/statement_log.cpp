#include "host/core/statement_log.h"

#include <utility>

namespace pelorin::host {

void StatementLog::clear() {
  cleared_ += statements_.size();
  statements_.clear();
  changed();
}

std::size_t StatementLog::begin(std::string text) {
  statements_.push_back({.text = std::move(text), .milliseconds = 0, .rows = 0, .error = {}});
  changed();
  return cleared_ + statements_.size() - 1;
}

void StatementLog::took(std::size_t number, double milliseconds, std::size_t rows) {
  Statement* const statement = entry(number);
  if (statement == nullptr) return;
  statement->milliseconds += milliseconds;
  statement->rows += rows;
  changed();
}

void StatementLog::failed(std::size_t number, std::string error) {
  Statement* const statement = entry(number);
  if (statement == nullptr) return;
  statement->error = std::move(error);
  changed();
}

Statement* StatementLog::entry(std::size_t number) {
  return number < cleared_ ? nullptr : &statements_[number - cleared_];
}

void StatementLog::changed() const {
  if (onChange) onChange();
}

}  // namespace pelorin::host
