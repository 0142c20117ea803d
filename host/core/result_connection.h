// A database connection as ADO shows it: several results for one statement, and what the server
// said besides.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"

namespace pelorin::host {

// Something a server said, as an error or beside a result.
struct ServerMessage {
  std::string text;
  std::int32_t nativeNumber = 0;
  std::string sqlState;
};

// An error of the database, with all that the server said about it.
class DatabaseError : public RunTimeError {
 public:
  DatabaseError(std::int32_t number, std::vector<ServerMessage> messages)
      : RunTimeError(number, messages.front().text), messages_(std::move(messages)) {}

  const std::vector<ServerMessage>& messages() const noexcept { return messages_; }

 private:
  std::vector<ServerMessage> messages_;
};

// The results of one statement, one at a time. A result without columns is that of a statement
// which returns no rows.
class ResultCursor : public Cursor {
 public:
  // False when there is no further result.
  virtual bool nextResult() = 0;
};

class ResultConnection : public Connection {
 public:
  virtual std::unique_ptr<ResultCursor> openResults(std::string_view sql) = 0;
  // Said beside the last statement, which went well.
  virtual std::vector<ServerMessage> messages() const = 0;

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override { return openResults(sql); }
};

}  // namespace pelorin::host
