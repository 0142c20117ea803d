// The file that a site is kept in.
#include "site/site_database.h"

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>

#include "site/engine.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

// The administrator may write everything; for a while, be somebody else.
class OrdinaryUser {
 public:
  OrdinaryUser() { EXPECT_TRUE(user_ != 0 || seteuid(nobody) == 0); }
  ~OrdinaryUser() { EXPECT_EQ(seteuid(user_), 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t nobody = 65534;
  uid_t user_ = geteuid();
};

void reachOut(sqlite3_context* context, int, sqlite3_value**) noexcept {
  sqlite3_result_int(context, 1);
}

void declareReachOut(sqlite3* database) {
  sqlite3_create_function_v2(database, "reach_out", 0, SQLITE_UTF8, nullptr, reachOut, nullptr,
                             nullptr, nullptr);
}

// Opens a file without the engine's precautions.
class ForeignHand {
 public:
  explicit ForeignHand(const std::string& file) {
    EXPECT_EQ(sqlite3_open(file.c_str(), &database_), SQLITE_OK);
    declareReachOut(database_);
  }
  ~ForeignHand() { sqlite3_close(database_); }
  ForeignHand(const ForeignHand&) = delete;
  ForeignHand& operator=(const ForeignHand&) = delete;

  void script(const std::string& sql) {
    EXPECT_EQ(sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database_);
  }

 private:
  sqlite3* database_ = nullptr;
};

class SiteFile : public testing::Test {
 protected:
  SiteFile() { fs::create_directories(folder_); }
  ~SiteFile() override { fs::remove_all(folder_); }

  std::string path(const std::string& name) const { return (folder_ / name).string(); }

  std::string write(const std::string& name, const std::string& content) const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
  }
  static std::string content(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static std::string openError(const std::string& file) {
    return errorOf([&] { SiteDatabase::open(file); });
  }
  template <class Work>
  static std::string errorOf(Work&& work) {
    try {
      work();
    } catch (const RunTimeError& error) {
      return error.description();
    }
    return "";
  }

  fs::path folder_ = fs::temp_directory_path() / ("pelorin_site_" + std::to_string(getpid()));
};

TEST_F(SiteFile, KeepsWhatWasWritten) {
  const std::string file = path("site.db");
  SiteDatabase::create(file, demonstrationSite).connect()->execute("exec TA_DeleteTrigger 1");
  const auto connection = SiteDatabase::open(file).connect();
  RecordSet rows = connection->open("select count(*) from IntegratedDeviceTriggers");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32(0), 6);
}

TEST_F(SiteFile, LeavesOneFileWhenItIsClosed) {
  SiteDatabase::create(path("site.db"), demonstrationSite);
  SiteDatabase::open(path("site.db")).connect()->execute("exec TA_DeleteTrigger 1");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST(SiteInMemory, ACopyHoldsTheSameRowsAndGoesItsOwnWay) {
  const SiteDatabase first = SiteDatabase::inMemory(demonstrationSite);
  const SiteDatabase second = first.copyInMemory();
  const auto triggers = [](const SiteDatabase& site) {
    RecordSet rows = site.connect()->open("exec TA_FetchSummary");
    int count = 0;
    while (rows.next()) ++count;
    return count;
  };
  const int before = triggers(first);
  EXPECT_EQ(triggers(second), before);
  second.connect()->execute("exec TA_DeleteTrigger 1");
  EXPECT_EQ(triggers(second), before - 1);
  EXPECT_EQ(triggers(first), before);
}

TEST_F(SiteFile, TakesAPathBeyondAscii) {
  const std::string file = path("Geb\xC3\xA4ude \xE6\x89\x89.site");
  SiteDatabase::create(file, emptySite);
  EXPECT_TRUE(fs::exists(file));
  EXPECT_EQ(openError(file), "");
}

TEST_F(SiteFile, AnExistingFileIsNeverOverwritten) {
  const std::string file = write("notes.txt", "do not lose me");
  EXPECT_EQ(errorOf([&] { SiteDatabase::create(file, emptySite); }),
            "The file '" + file + "' exists already; it is left as it is.");
  EXPECT_EQ(content(file), "do not lose me");
}

TEST_F(SiteFile, ASiteThatExistsIsNotFilledAgain) {
  const std::string file = path("site.db");
  SiteDatabase::create(file, demonstrationSite);
  EXPECT_THAT(errorOf([&] { SiteDatabase::create(file, emptySite); }), HasSubstr("exists already"));
  EXPECT_EQ(openError(file), "");
}

TEST_F(SiteFile, AFailedCreationLeavesNoFile) {
  const std::string file = path("site.db");
  const auto broken = [](site::RowSink&) { throw RunTimeError(1, "no rows today"); };
  EXPECT_EQ(errorOf([&] { SiteDatabase::create(file, broken); }), "no rows today");
  EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(SiteFile, CreationInAMissingFolderFails) {
  const std::string file = path("nowhere/site.db");
  EXPECT_EQ(errorOf([&] { SiteDatabase::create(file, emptySite); }),
            "The database file '" + file + "' cannot be opened.");
}

TEST_F(SiteFile, AMissingFileIsNamedAndNotMade) {
  const std::string file = path("missing.db");
  EXPECT_EQ(openError(file), "There is no database file '" + file + "'.");
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(SiteFile, AFolderIsNoDatabase) {
  EXPECT_EQ(openError(folder_.string()), "'" + folder_.string() + "' is not a file.");
}

TEST_F(SiteFile, ATextFileIsNoDatabase) {
  const std::string text(4096, 'x');
  const std::string file = write("text.db", text);
  EXPECT_EQ(openError(file), "The file '" + file + "' is not a database.");
  EXPECT_EQ(content(file), text);
}

TEST_F(SiteFile, AnEmptyFileIsNoSiteDatabase) {
  const std::string file = write("empty.db", "");
  EXPECT_EQ(openError(file), "'" + file + "' is not a site database.");
  EXPECT_EQ(content(file), "");
}

TEST_F(SiteFile, AnotherProgramsDatabaseIsNotASiteDatabase) {
  const std::string file = path("other.db");
  site::Engine::open(file, site::Engine::Mode::Create)->script("create table t (a int)");
  const std::string before = content(file);
  EXPECT_EQ(openError(file), "'" + file + "' is not a site database.");
  EXPECT_EQ(content(file), before);
}

TEST_F(SiteFile, ADatabaseOfANewerVersionIsRefused) {
  const std::string file = path("newer.db");
  SiteDatabase::create(file, emptySite);
  site::Engine::open(file, site::Engine::Mode::Open)->script("pragma user_version = 99");
  EXPECT_EQ(openError(file),
            "The site database '" + file + "' was made by a newer version of this program.");
}

// Whoever gives somebody a file must not be able to have programs of his own run by it.
TEST_F(SiteFile, WhatAForeignHandPutIntoTheSchemaIsNotRun) {
  const std::string file = path("site.db");
  SiteDatabase::create(file, demonstrationSite);
  ForeignHand(file).script(
      "create trigger sweep after insert on AuditLog begin delete from CCTV_TriggerAction; end; "
      "drop table Servers; create view Servers as select 1 as ServerID;");
  const SiteDatabase site = SiteDatabase::open(file);
  site.auditLog().append({0, "", "Add", "TriggerAction", 12, "", 1184});
  const auto connection = site.connect();
  EXPECT_FALSE(allRows(*connection, "select * from CCTV_TriggerAction", {}).empty());
  EXPECT_THAT(errorOf([&] { connection->execute("select * from Servers"); }),
              HasSubstr("access to view \"Servers\" prohibited"));
}

TEST_F(SiteFile, AFunctionInTheSchemaThatReachesBeyondTheFileIsRefused) {
  const std::string file = path("site.db");
  SiteDatabase::create(file, demonstrationSite);
  ForeignHand(file).script(
      "drop table DVR_ViewGroups; create table DVR_ViewGroups "
      "(ID int, Description text default (reach_out()))");
  EXPECT_THAT(errorOf([&] {
                const auto engine = site::Engine::open(file, site::Engine::Mode::Open);
                declareReachOut(engine->handle());
                engine->script("insert into DVR_ViewGroups (ID) values (1)");
              }),
              HasSubstr("unsafe use of reach_out()"));
}

TEST_F(SiteFile, ADamagedFileIsReportedWhenItIsRead) {
  const std::string file = path("damaged.db");
  SiteDatabase::create(file, demonstrationSite);
  std::string bytes = content(file);
  for (std::size_t at = 4096; at < bytes.size(); ++at) bytes[at] = 'x';
  write("damaged.db", bytes);
  EXPECT_EQ(errorOf([&] { SiteDatabase::open(file).connect()->execute("select * from Doors"); }),
            "The database file '" + file + "' is damaged.");
}

// Another program that writes to the file.
class LockedFile : public SiteFile {
 protected:
  void lock() {
    other_ = site::Engine::open(file, site::Engine::Mode::Open);
    writing_.emplace(*other_);
  }
  void unlock() { writing_.reset(); }

  const std::string file = path("site.db");
  const std::string inUse = "The database file '" + file + "' is in use by another program.";

 private:
  std::shared_ptr<site::Engine> other_;
  std::optional<site::Transaction> writing_;
};

TEST_F(LockedFile, IsReportedAfterAShortWait) {
  SiteDatabase::create(file, emptySite);
  lock();
  EXPECT_EQ(openError(file), inUse);
}

TEST_F(LockedFile, ThatWasOpenedBeforeFailsTheWriteAndStaysUsable) {
  const auto connection = SiteDatabase::create(file, demonstrationSite).connect();
  lock();
  EXPECT_EQ(errorOf([&] { connection->execute("exec TA_DeleteTrigger 1"); }), inUse);
  EXPECT_EQ(errorOf([&] { connection->execute("exec TA_FetchSummary"); }), "");
  unlock();
  EXPECT_EQ(errorOf([&] { connection->execute("exec TA_DeleteTrigger 1"); }), "");
}

TEST_F(SiteFile, TwoProgramsCanUseOneSite) {
  const std::string file = path("site.db");
  const SiteDatabase first = SiteDatabase::create(file, demonstrationSite);
  const SiteDatabase second = SiteDatabase::open(file);
  first.connect()->execute("exec TA_DeleteTrigger 1");
  const auto connection = second.connect();
  RecordSet rows = connection->open("select * from IntegratedDeviceTriggers where TriggerID = 1");
  EXPECT_FALSE(rows.next());
}

TEST_F(SiteFile, AReadOnlyFileIsReported) {
  fs::permissions(folder_, fs::perms::others_all, fs::perm_options::add);
  const std::string file = path("site.db");
  SiteDatabase::create(file, emptySite);
  const auto readers = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  fs::permissions(file, readers);
  const OrdinaryUser user;
  EXPECT_EQ(openError(file), "The database file '" + file + "' is read-only.");
}

TEST_F(SiteFile, TheAuditLogStaysInTheFile) {
  const std::string file = path("site.db");
  {
    AuditLog log = SiteDatabase::create(file, emptySite).auditLog();
    log.append({0, "", "Add", "TriggerAction", 12, "Trigger Event 42", 1184});
    log.append({0, "", "Delete", "TriggerAction", 12, "O'Brien \xC3\xA4", 1186});
  }
  const std::vector<AuditRecord> records = SiteDatabase::open(file).auditLog().recordsAfter(0);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].operation, "Add");
  EXPECT_EQ(records[0].objectKind, "TriggerAction");
  EXPECT_EQ(records[0].objectId, 12);
  EXPECT_EQ(records[0].description, "Trigger Event 42");
  EXPECT_EQ(records[0].eventCode, 1184);
  EXPECT_THAT(records[0].loggedAt, testing::MatchesRegex("....-..-.. ..:..:.."));
  EXPECT_EQ(records[1].description, "O'Brien \xC3\xA4");
}

TEST_F(SiteFile, TheAuditLogCanBeReadFromANumberOn) {
  const SiteDatabase site = SiteDatabase::inMemory(emptySite);
  AuditLog log = site.auditLog();
  for (int at = 0; at < 3; ++at) log.append({0, "", "Add", "TriggerAction", at, "", 1184});
  const std::vector<AuditRecord> records = log.recordsAfter(log.recordsAfter(0)[1].number);
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].objectId, 2);
}

TEST_F(SiteFile, AnEmptySiteHasAllTablesAndNoRows) {
  const auto connection = SiteDatabase::inMemory(emptySite).connect();
  for (const char* table : {"CCTV_TriggerAction", "TA_EventFilters", "Servers", "CSR_Points"}) {
    EXPECT_THAT(allRows(*connection, std::string("select * from ") + table, {}), IsEmpty());
  }
}

}  // namespace
}  // namespace pelorin
