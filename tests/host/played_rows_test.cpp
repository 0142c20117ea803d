// Which rows a played request wrote, and how they are taken out again.
#include "host/core/played_rows.h"

#include <gmock/gmock.h>

#include "host/core/embedded_connection.h"
#include "site/site_database.h"

namespace pelorin::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PlayedRows : public testing::Test {
 protected:
  void write(const std::string& address, int event, int camera = 3) {
    const std::string number = std::to_string(event);
    connection.execute("exec CCTV_Insert_TA 1, 2, " + std::to_string(camera) + ", 0, " + number +
                       ", '" + address + "', 1, '" + number + "', '" + address + "', 0, False");
  }
  void writeTheRequest() {
    for (const char* address : typical::addresses) {
      for (const int event : typical::events) write(address, event);
    }
  }
  std::vector<std::int32_t> numbers() {
    std::vector<std::int32_t> ids;
    for (const PlayedRow& row : playedRows(connection, before)) ids.push_back(row.id);
    return ids;
  }

  SiteDatabase site = SiteDatabase::inMemory(demonstrationSite);
  EmbeddedConnection connection{site.session()};
  std::set<std::int32_t> before = triggerNumbers(connection);
};

TEST_F(PlayedRows, AreTheFourThatTheRequestWritesAndNoOthers) {
  ASSERT_EQ(before.size(), 8U);
  EXPECT_THAT(numbers(), IsEmpty());
  write("001.01.001.D02", 1);
  EXPECT_FALSE(isWhole(playedRows(connection, before)));
  write("001.01.001.D02", 2);
  write("001.01.001.D04", 1);
  write("001.01.001.D02", 3);
  write("001.01.001.D02", 1, 4);
  write("001.01.001.D03", 1);
  write("001.01.001.D03", 2);
  EXPECT_THAT(numbers(), ElementsAre(9, 10, 14, 15));
  EXPECT_TRUE(isWhole(playedRows(connection, before)));
}

TEST_F(PlayedRows, WhoseRowItIsCannotBeKnownWhenAnotherWroteTheSame) {
  writeTheRequest();
  write("001.01.001.D03", 2);
  EXPECT_FALSE(areCertain(playedRows(connection, before)));
  EXPECT_FALSE(isWhole(playedRows(connection, before)));
}

TEST_F(PlayedRows, RemovingThemLeavesWhatWasThereBefore) {
  writeTheRequest();
  write("001.01.001.D04", 1);
  for (const PlayedRow& row : playedRows(connection, before)) {
    EXPECT_TRUE(removeRow(connection, row));
  }
  std::set<std::int32_t> expected = before;
  expected.insert(13);
  EXPECT_EQ(triggerNumbers(connection), expected);
}

class WithoutTables : public EmbeddedConnection {
 public:
  using EmbeddedConnection::EmbeddedConnection;
  std::unique_ptr<ResultCursor> openResults(std::string_view) override {
    throw RunTimeError(-2147217865, "Invalid object name 'Doors'.");
  }
};

std::string complaintAbout(Connection& connection) {
  try {
    checkDemonstrationSite(connection);
  } catch (const RunTimeError& error) {
    return error.description();
  }
  return "";
}

TEST_F(PlayedRows, AreWrittenOnlyIntoTheDemonstrationSite) {
  EXPECT_EQ(complaintAbout(connection), "");
  connection.execute("update Doors set DoorName = 'Gate' where Address = '001.01.001.D03'");
  EXPECT_EQ(complaintAbout(connection),
            "The database does not hold the demonstration site, which a played request needs: its "
            "doors are others.");
  WithoutTables another(site.session());
  EXPECT_EQ(complaintAbout(another),
            "The database does not hold the demonstration site, which a played request needs: "
            "Invalid object name 'Doors'.");
  const SiteDatabase bare = SiteDatabase::inMemory(bareSite);
  EmbeddedConnection other(bare.session());
  EXPECT_NE(complaintAbout(other), "");
}

}  // namespace
}  // namespace pelorin::host
