// A played request over a server, which is a connection of the test's own in ODBC's place.
#include <gmock/gmock.h>

#include "driver/find_window.h"
#include "host/core/embedded_connection.h"
#include "host/play/played_request.h"
#include "site/site_database.h"
#include "tests/windows/journey/host_on_thread.h"

namespace pelorin::test {
namespace {

using testing::Contains;

class ServerJourney : public testing::Test {
 protected:
  void start(const SiteFilling& filling) {
    server_.emplace(SiteDatabase::inMemory(filling));
    const auto connect = [this](const std::string&) {
      return std::make_shared<host::EmbeddedConnection>(server_->session());
    };
    host_.emplace(connect);
  }
  bool play(bool undo) {
    host::Stage stage(host_->ui(), host_->session(), host_->window(), testing::TempDir(), "-server",
                      [this](const std::string& line) { told_.push_back(line); });
    return host::playOnServer(stage, undo);
  }
  // Address and event of each stored trigger action, and the words of the audit log.
  std::string stored(const std::string& sql) {
    return host_->ui().run([&] {
      std::string all;
      RecordSet rows = server_->connect()->open(sql);
      while (rows.next()) all += rows.text(0) + " " + rows.text(1) + "\n";
      return all;
    });
  }
  std::string triggers() {
    return stored("select T_Address, T_EventID from CCTV_TriggerAction order by TA_ID");
  }
  std::string audit() {
    return stored("select Operation, ObjectID from AuditLog order by AuditID");
  }

  std::optional<SiteDatabase> server_;
  std::optional<HostOnThread> host_;
  std::vector<std::string> told_;
};

TEST_F(ServerJourney, LeavesItsRowsAndSaysWhichAndTheAuditTrailIsInTheServersTable) {
  start(demonstrationSite);
  const std::string before = triggers();
  EXPECT_TRUE(play(false));
  EXPECT_EQ(triggers(), before +
                            "001.01.001.D02 1\n001.01.001.D02 2\n"
                            "001.01.001.D03 1\n001.01.001.D03 2\n");
  EXPECT_EQ(audit(), "Add 0\nAdd 0\nAdd 0\nAdd 0\n");
  EXPECT_THAT(told_, Contains("  TA_ID 9: 001.01.001.D02, event 1"));
  EXPECT_EQ(told_.back(), "They were left there: 9, 10, 11, 12.");
}

TEST_F(ServerJourney, WithUndoExactlyItsRowsGoAndTheAuditTrailSaysSo) {
  start(demonstrationSite);
  const std::string before = triggers();
  EXPECT_TRUE(play(true));
  EXPECT_EQ(triggers(), before);
  EXPECT_EQ(audit(), "Add 0\nAdd 0\nAdd 0\nAdd 0\nDelete 9\nDelete 10\nDelete 11\nDelete 12\n");
  EXPECT_EQ(told_.back(), "Removed again: 9, 10, 11, 12.");
}

TEST_F(ServerJourney, NothingIsDoneWhereTheDemonstrationSiteIsNot) {
  start(bareSite);
  try {
    play(true);
    FAIL() << "it played";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.description(),
              "The database does not hold the demonstration site, which a played request needs: "
              "its doors are others.");
  }
  EXPECT_EQ(driver::findForm("frmTASummary"), nullptr);
  EXPECT_EQ(triggers(), "");
  EXPECT_EQ(audit(), "");
}

}  // namespace
}  // namespace pelorin::test
