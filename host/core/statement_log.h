// What was sent to the database, in order, with the time each statement took.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace pelorin::host {

struct Statement {
  std::string text;
  double milliseconds = 0;  // until the last row was read
  std::size_t rows = 0;     // that were read
  std::string error;        // empty when it went well
};

class StatementLog {
 public:
  // Called when a statement was sent and each time its entry changed.
  std::function<void()> onChange;

  const std::vector<Statement>& statements() const noexcept { return statements_; }
  void clear();

  // A number for the calls below, never given twice.
  std::size_t begin(std::string text);
  // Adds to the entry; one that was cleared in between is left alone.
  void took(std::size_t number, double milliseconds, std::size_t rows);
  void failed(std::size_t number, std::string error);

 private:
  Statement* entry(std::size_t number);
  void changed() const;

  std::vector<Statement> statements_;
  std::size_t cleared_ = 0;
};

}  // namespace pelorin::host
