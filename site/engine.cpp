#include "site/engine.h"

#include <sqlite3.h>

#include <array>
#include <limits>
#include <utility>

#include "database/ado_numbers.h"
#include "site/errors.h"
#include "site/text_order.h"

namespace pelorin::site {

namespace {

constexpr int busyMilliseconds = 2000;

struct Wording {
  std::string_view engine;  // how the engine's message begins
  std::string_view before;
  std::string_view after;
  std::int32_t number = ado::error::statement;
};

// The engine's messages and what the server says in the same case.
constexpr std::array<Wording, 4> wordings{
    {{"no such table: ", "Invalid object name '", "'.", ado::error::noTable},
     {"no such column: ", "Invalid column name '", "'."},
     {"near \"", "Incorrect syntax near '", "'."},
     {"ambiguous column name: ", "Ambiguous column name '", "'."}}};

// The subject of a message: up to its closing remark, without quotes.
std::string subject(std::string_view text) {
  text = text.substr(0, text.find("\": syntax error"));
  text = text.substr(0, text.find(" - should this be"));
  if (text.size() > 1 && text.front() == '"' && text.back() == '"') {
    text = text.substr(1, text.size() - 2);
  }
  return std::string(text);
}

RunTimeError serverError(std::string_view message) {
  if (message == "incomplete input") {
    return statementError("Incorrect syntax at the end of the statement.");
  }
  for (const Wording& wording : wordings) {
    if (!message.starts_with(wording.engine)) continue;
    return {wording.number, std::string(wording.before) +
                                subject(message.substr(wording.engine.size())) +
                                std::string(wording.after)};
  }
  return statementError(std::string(message));
}

// "NOT NULL constraint failed: Table.Column"
RunTimeError constraintError(const std::string& message) {
  constexpr std::string_view nullRefused = "NOT NULL constraint failed: ";
  const std::size_t dot = message.rfind('.');
  if (!message.starts_with(nullRefused) || dot == std::string::npos) {
    return {ado::error::constraint, message + "."};
  }
  const std::string_view table =
      std::string_view(message).substr(nullRefused.size(), dot - nullRefused.size());
  return nullError(table, std::string_view(message).substr(dot + 1));
}

int compareServerTexts(void*, int leftSize, const void* left, int rightSize,
                       const void* right) noexcept {
  const auto text = [](const void* start, int size) {
    return std::string_view(static_cast<const char*>(start), static_cast<std::size_t>(size));
  };
  return compareTexts(text(left, leftSize), text(right, rightSize));
}

// The tables of a site are only tables: what else a file brings along is not for us to run.
bool isGuarded(sqlite3* database) {
  const auto set = [database](int option, int value) {
    return sqlite3_db_config(database, option, value, nullptr) == SQLITE_OK;
  };
  return set(SQLITE_DBCONFIG_DEFENSIVE, 1) && set(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0) &&
         set(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0) && set(SQLITE_DBCONFIG_ENABLE_VIEW, 0);
}

int openFlags(Engine::Mode mode) {
  if (mode == Engine::Mode::Open) return SQLITE_OPEN_READWRITE;
  const int create = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  return mode == Engine::Mode::Memory ? create | SQLITE_OPEN_MEMORY : create;
}

void readColumns(PreparedStatement& statement) {
  statement.columns.clear();
  statement.isBit.clear();
  const int count = sqlite3_column_count(statement.handle);
  for (int column = 0; column < count; ++column) {
    const char* type = sqlite3_column_decltype(statement.handle, column);
    const std::string name = sqlite3_column_name(statement.handle, column);
    // Without "as", the engine names a computed column by its expression.
    const bool unnamed = !type && name.find('(') != std::string::npos;
    statement.columns.push_back(unnamed ? std::string() : name);
    statement.isBit.push_back(type && std::string_view(type) == "bit");
  }
}

PreparedStatement prepare(const Engine& engine, std::string_view sql, unsigned flags) {
  if (sql.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw statementError("The statement is too long.");
  }
  PreparedStatement statement;
  const int result = sqlite3_prepare_v3(engine.handle(), sql.data(), static_cast<int>(sql.size()),
                                        flags, &statement.handle, nullptr);
  if (result != SQLITE_OK) engine.fail(result);
  readColumns(statement);
  return statement;
}

}  // namespace

std::shared_ptr<Engine> Engine::open(const std::string& path, Mode mode) {
  sqlite3* database = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &database, openFlags(mode), nullptr);
  std::shared_ptr<Engine> engine(new Engine(database, path));
  if (result != SQLITE_OK) engine->fail(result);
  if (!isGuarded(database)) engine->fail(SQLITE_ERROR);
  const int collated = sqlite3_create_collation_v2(database, serverCollation, SQLITE_UTF8, nullptr,
                                                   compareServerTexts, nullptr);
  if (collated != SQLITE_OK) engine->fail(collated);
  // A file that cannot be written is opened for reading only, without a word.
  if (sqlite3_db_readonly(database, "main") == 1) engine->fail(SQLITE_READONLY);
  sqlite3_extended_result_codes(database, 0);
  sqlite3_busy_timeout(database, busyMilliseconds);
  return engine;
}

Engine::~Engine() {
  for (const auto& [sql, statements] : idle_) {
    for (const PreparedStatement& statement : statements) sqlite3_finalize(statement.handle);
  }
  sqlite3_close_v2(database_);
}

PreparedStatement Engine::take(const std::string& sql) {
  std::vector<PreparedStatement>& idle = idle_[sql];
  if (idle.empty()) {
    // Room for each that will be put back: there nothing may fail.
    idle.reserve(idle.capacity() + 1);
    return prepare(*this, sql, SQLITE_PREPARE_PERSISTENT);
  }
  PreparedStatement taken = std::move(idle.back());
  idle.pop_back();
  return taken;
}

void Engine::putBack(const std::string& sql, PreparedStatement idle) noexcept {
  // Repeats the failure of the last step, which has been reported already.
  static_cast<void>(sqlite3_reset(idle.handle));
  sqlite3_clear_bindings(idle.handle);
  idle_.find(sql)->second.push_back(std::move(idle));
}

void Engine::copyFrom(const Engine& other) {
  sqlite3_backup* copy = sqlite3_backup_init(database_, "main", other.database_, "main");
  if (copy == nullptr) fail(sqlite3_errcode(database_));
  sqlite3_backup_step(copy, -1);
  const int result = sqlite3_backup_finish(copy);
  if (result != SQLITE_OK) fail(result);
}

void Engine::script(const std::string& sql) {
  const int result = sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr);
  if (result != SQLITE_OK) fail(result);
}

std::int64_t Engine::changes() const {
  return sqlite3_changes64(database_);
}

void Engine::fail(int result) const {
  const std::string message = database_ ? sqlite3_errmsg(database_) : sqlite3_errstr(result);
  const std::string file = "The database file '" + path_ + "' ";
  switch (result) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      throw databaseError(file + "is in use by another program.");
    case SQLITE_READONLY:
      throw databaseError(file + "is read-only.");
    case SQLITE_NOTADB:
      throw databaseError("The file '" + path_ + "' is not a database.");
    case SQLITE_CORRUPT:
      throw databaseError(file + "is damaged.");
    case SQLITE_CANTOPEN:
      throw databaseError(file + "cannot be opened.");
    case SQLITE_FULL:
    case SQLITE_IOERR:
      throw databaseError(file + "cannot be read or written: " + message + ".");
    case SQLITE_CONSTRAINT:
      throw constraintError(message);
    default:
      throw serverError(message);
  }
}

EngineStatement::EngineStatement(std::shared_ptr<Engine> engine, std::string_view sql)
    : engine_(std::move(engine)), prepared_(prepare(*engine_, sql, 0)) {}

EngineStatement EngineStatement::kept(std::shared_ptr<Engine> engine, const std::string& sql) {
  PreparedStatement prepared = engine->take(sql);
  return {std::move(engine), std::move(prepared), sql};
}

EngineStatement::~EngineStatement() {
  if (prepared_.handle == nullptr) return;
  if (keptAs_ != nullptr) {
    engine_->putBack(*keptAs_, std::move(prepared_));
  } else {
    sqlite3_finalize(prepared_.handle);
  }
}

EngineStatement::EngineStatement(EngineStatement&& other) noexcept
    : engine_(std::move(other.engine_)),
      prepared_(std::exchange(other.prepared_, {})),
      keptAs_(other.keptAs_) {}

void EngineStatement::bind(int position, const Value& value) {
  int result = SQLITE_OK;
  if (const auto* number = std::get_if<std::int64_t>(&value)) {
    result = sqlite3_bind_int64(prepared_.handle, position, *number);
  } else if (const auto* real = std::get_if<double>(&value)) {
    result = sqlite3_bind_double(prepared_.handle, position, *real);
  } else if (const auto* truth = std::get_if<bool>(&value)) {
    result = sqlite3_bind_int(prepared_.handle, position, *truth ? 1 : 0);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    result = sqlite3_bind_text64(prepared_.handle, position, text->data(), text->size(),
                                 SQLITE_TRANSIENT, SQLITE_UTF8);
  } else {
    result = sqlite3_bind_null(prepared_.handle, position);
  }
  if (result != SQLITE_OK) engine_->fail(result);
}

void EngineStatement::bind(const std::string& parameter, const Value& value) {
  const int position = sqlite3_bind_parameter_index(prepared_.handle, parameter.c_str());
  if (position > 0) bind(position, value);
}

bool EngineStatement::step() {
  const int result = sqlite3_step(prepared_.handle);
  // A table was made anew meanwhile.
  if (sqlite3_stmt_status(prepared_.handle, SQLITE_STMTSTATUS_REPREPARE, 1) > 0) {
    readColumns(prepared_);
  }
  if (result != SQLITE_ROW && result != SQLITE_DONE) engine_->fail(result);
  return result == SQLITE_ROW;
}

void EngineStatement::reset() const {
  // Repeats the failure of the last step, which has been reported already.
  static_cast<void>(sqlite3_reset(prepared_.handle));
}

Value EngineStatement::value(std::size_t column) const {
  const int at = static_cast<int>(column);
  switch (sqlite3_column_type(prepared_.handle, at)) {
    case SQLITE_NULL:
      return Null{};
    case SQLITE_FLOAT:
      return sqlite3_column_double(prepared_.handle, at);
    case SQLITE_INTEGER: {
      const std::int64_t number = sqlite3_column_int64(prepared_.handle, at);
      if (prepared_.isBit[column]) return number != 0;
      return number;
    }
    default: {
      const auto* text = static_cast<const char*>(sqlite3_column_blob(prepared_.handle, at));
      const auto size = static_cast<std::size_t>(sqlite3_column_bytes(prepared_.handle, at));
      return text ? std::string(text, size) : std::string();
    }
  }
}

Transaction::Transaction(Engine& engine) : engine_(engine) {
  engine_.script("begin immediate");
}

Transaction::~Transaction() {
  if (open_) sqlite3_exec(engine_.handle(), "rollback", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
  engine_.script("commit");
  open_ = false;
}

}  // namespace pelorin::site
