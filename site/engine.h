// Owners for the embedded engine's handles. Its failures come out as RunTimeError with the texts
// and numbers that ADO would give for the server's.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace pelorin::site {

// The collation of the texts, as on a server.
inline constexpr const char* serverCollation = "server_text";

// A statement as the engine prepared it.
struct PreparedStatement {
  sqlite3_stmt* handle = nullptr;
  std::vector<std::string> columns;
  std::vector<bool> isBit;
};

class Engine : public std::enable_shared_from_this<Engine> {
 public:
  enum class Mode { Create, Open, Memory };
  static std::shared_ptr<Engine> open(const std::string& path, Mode mode);

  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  // Takes over everything that `other` holds, in place of what is here.
  void copyFrom(const Engine& other);
  // Runs the program's own statements, separated by semicolons.
  void script(const std::string& sql);
  // Rows that the last insert, update or delete touched.
  std::int64_t changes() const;
  sqlite3* handle() const { return database_; }

  // Texts that are run again and again are prepared once for each use at the same time. What is
  // taken is put back, reset, or finalised by who took it.
  PreparedStatement take(const std::string& sql);
  void putBack(const std::string& sql, PreparedStatement idle) noexcept;

  // Throws what the engine's result means; never returns.
  [[noreturn]] void fail(int result) const;

 private:
  Engine(sqlite3* database, std::string path) : database_(database), path_(std::move(path)) {}

  sqlite3* database_;
  std::string path_;
  std::unordered_map<std::string, std::vector<PreparedStatement>> idle_;
};

// One statement; keeps the engine open while it lives.
class EngineStatement {
 public:
  EngineStatement(std::shared_ptr<Engine> engine, std::string_view sql);
  // Prepared once and kept for the next use; the text has to live as long as the statement.
  static EngineStatement kept(std::shared_ptr<Engine> engine, const std::string& sql);
  ~EngineStatement();
  EngineStatement(EngineStatement&& other) noexcept;
  EngineStatement(const EngineStatement&) = delete;
  EngineStatement& operator=(const EngineStatement&) = delete;
  EngineStatement& operator=(EngineStatement&&) = delete;

  void bind(int position, const Value& value);                  // from 1
  void bind(const std::string& parameter, const Value& value);  // ignored where it is not used
  // True while there is a row.
  bool step();
  void reset() const;

  // Empty names for columns that are computed and not named.
  const std::vector<std::string>& columns() const { return prepared_.columns; }
  Value value(std::size_t column) const;  // from 0

 private:
  EngineStatement(std::shared_ptr<Engine> engine, PreparedStatement prepared,
                  const std::string& keptAs)
      : engine_(std::move(engine)), prepared_(std::move(prepared)), keptAs_(&keptAs) {}

  std::shared_ptr<Engine> engine_;
  PreparedStatement prepared_;
  const std::string* keptAs_ = nullptr;
};

// A transaction that is undone unless it is committed.
class Transaction {
 public:
  explicit Transaction(Engine& engine);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();

 private:
  Engine& engine_;
  bool open_ = true;
};

}  // namespace pelorin::site
