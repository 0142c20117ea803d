#include "site/site_database.h"

#include <filesystem>
#include <utility>

#include "site/embedded_files.h"
#include "site/engine.h"
#include "site/errors.h"
#include "site/fill_database.h"

namespace pelorin {

namespace {

namespace fs = std::filesystem;
using site::Engine;
using site::EngineStatement;

// Marks a file as a site database, in the field that the engine keeps for this.
constexpr std::int64_t siteMark = 0x50454C4F;
// Version 2 compares texts in a way of its own, which older programs do not know.
constexpr std::int64_t schemaVersion = 2;

fs::path filePath(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

// Removes a half-made file.
class FileRemover {
 public:
  explicit FileRemover(fs::path path) : path_(std::move(path)) {}
  ~FileRemover() {
    std::error_code ignored;
    if (armed_) fs::remove(path_, ignored);
  }
  FileRemover(const FileRemover&) = delete;
  FileRemover& operator=(const FileRemover&) = delete;

  void arm(bool armed) { armed_ = armed; }

 private:
  fs::path path_;
  bool armed_ = false;
};

std::int64_t number(const std::shared_ptr<Engine>& engine, std::string_view sql) {
  EngineStatement statement(engine, sql);
  return statement.step() ? toInt64(statement.value(0)) : 0;
}

void fill(const std::shared_ptr<Engine>& engine, const SiteFilling& filling) {
  createTables(*engine);
  site::EngineRows rows(engine);
  filling(rows);
  engine->script("pragma application_id = " + std::to_string(siteMark) +
                 "; pragma user_version = " + std::to_string(schemaVersion));
}

// Writers do not wait for the disk with every statement, and readers do not hold them up.
void useWriteAheadLog(Engine& engine) {
  engine.script("pragma journal_mode = wal; pragma synchronous = normal");
}

void checkFile(const std::string& path) {
  std::error_code ignored;
  const fs::path file = filePath(path);
  if (!fs::exists(file, ignored)) {
    throw site::databaseError("There is no database file '" + path + "'.");
  }
  if (!fs::is_regular_file(file, ignored)) {
    throw site::databaseError("'" + path + "' is not a file.");
  }
}

void checkMark(const std::shared_ptr<Engine>& engine, const std::string& path) {
  if (number(engine, "pragma application_id") != siteMark) {
    throw site::databaseError("'" + path + "' is not a site database.");
  }
  if (number(engine, "pragma user_version") > schemaVersion) {
    throw site::databaseError("The site database '" + path +
                              "' was made by a newer version of this program.");
  }
}

// Fails when the file is locked or read-only, before anything depends on it.
void checkWritable(Engine& engine) {
  site::Transaction attempt(engine);
}

void readFiles(std::string_view folder, site::RowSink& rows) {
  for (const site::EmbeddedFile& file : site::embeddedFiles(folder)) readRows(file.text, rows);
}

}  // namespace

void emptySite(site::RowSink&) {}

void bareSite(site::RowSink& rows) {
  readFiles("data/base/", rows);
}

void demonstrationSite(site::RowSink& rows) {
  bareSite(rows);
  readFiles("data/demo/", rows);
}

SiteDatabase::SiteDatabase(std::shared_ptr<Engine> engine)
    : engine_(std::move(engine)), session_(std::make_shared<SiteSession>(engine_)) {}

SiteDatabase SiteDatabase::create(const std::string& path, const SiteFilling& filling) {
  const std::string exists = "The file '" + path + "' exists already; it is left as it is.";
  std::error_code ignored;
  if (fs::exists(filePath(path), ignored)) throw site::databaseError(exists);
  FileRemover remover(filePath(path));
  const std::shared_ptr<Engine> engine = Engine::open(path, Engine::Mode::Create);
  site::Transaction transaction(*engine);
  // Another program may have made it since.
  if (number(engine, "select count(*) from sqlite_schema") > 0) throw site::databaseError(exists);
  remover.arm(true);
  fill(engine, filling);
  transaction.commit();
  remover.arm(false);
  useWriteAheadLog(*engine);
  return SiteDatabase(engine);
}

SiteDatabase SiteDatabase::open(const std::string& path) {
  checkFile(path);
  const std::shared_ptr<Engine> engine = Engine::open(path, Engine::Mode::Open);
  checkMark(engine, path);
  checkWritable(*engine);
  useWriteAheadLog(*engine);
  return SiteDatabase(engine);
}

SiteDatabase SiteDatabase::inMemory(const SiteFilling& filling) {
  const std::shared_ptr<Engine> engine = Engine::open(":memory:", Engine::Mode::Memory);
  site::Transaction transaction(*engine);
  fill(engine, filling);
  transaction.commit();
  return SiteDatabase(engine);
}

SiteDatabase SiteDatabase::copyInMemory() const {
  const std::shared_ptr<Engine> engine = Engine::open(":memory:", Engine::Mode::Memory);
  engine->copyFrom(*engine_);
  return SiteDatabase(engine);
}

}  // namespace pelorin
