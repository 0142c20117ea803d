// Audit records in the host's file, and in the server's table.
#include "host/core/audit_trail.h"

#include <gtest/gtest.h>

#include "host/core/embedded_connection.h"
#include "site/site_database.h"

namespace pelorin::host {
namespace {

AuditRecord recordOf(const std::string& operation) {
  AuditRecord record;
  record.operation = operation;
  return record;
}

TEST(AuditTrail, WithoutAFileItNumbersAndDatesItsRecords) {
  AuditTrail trail;
  trail.add(recordOf("Add"));
  trail.add(recordOf("Delete"));
  ASSERT_EQ(trail.records().size(), 2U);
  EXPECT_EQ(trail.records()[1].number, 2);
  EXPECT_EQ(trail.records()[1].operation, "Delete");
  EXPECT_EQ(trail.records()[1].loggedAt.size(), std::string("2026-11-21 08:30:00").size());
}

TEST(AuditTrail, TheRecordsOfTheFileAreThereFromTheStart) {
  const SiteDatabase site = SiteDatabase::inMemory(emptySite);
  AuditTrail(site.auditLog()).add(recordOf("Add"));
  const AuditTrail again(site.auditLog());
  ASSERT_EQ(again.records().size(), 1U);
  EXPECT_EQ(again.records()[0].operation, "Add");
}

AuditRecord wholeRecord() {
  return {0, "", "Delete", "TriggerAction", 12, "O'Brien's T\xC3\xBCr", 1186};
}

TEST(AuditTrail, OverAServerEachRecordReachesTheTable) {
  const SiteDatabase site = SiteDatabase::inMemory(emptySite);
  AuditTrail trail{AuditTable(std::make_shared<EmbeddedConnection>(site.session()))};
  trail.add(wholeRecord());
  const std::vector<AuditRecord> stored = site.auditLog().recordsAfter(0);
  ASSERT_EQ(stored.size(), 1U);
  EXPECT_EQ(stored[0].operation, "Delete");
  EXPECT_EQ(stored[0].objectKind, "TriggerAction");
  EXPECT_EQ(stored[0].objectId, 12);
  EXPECT_EQ(stored[0].description, "O'Brien's T\xC3\xBCr");
  EXPECT_EQ(stored[0].eventCode, 1186);
  ASSERT_EQ(trail.records().size(), 1U);
  EXPECT_EQ(stored[0].loggedAt, trail.records()[0].loggedAt);
}

class WithoutRight : public EmbeddedConnection {
 public:
  using EmbeddedConnection::EmbeddedConnection;

 protected:
  void run(std::string_view) override {
    throw RunTimeError(-2147217911, "The INSERT permission was denied on the object 'AuditLog'.");
  }
};

TEST(AuditTrail, ARecordThatTheTableDoesNotTakeIsAnErrorAndNotShown) {
  const SiteDatabase site = SiteDatabase::inMemory(emptySite);
  AuditTrail trail{AuditTable(std::make_shared<WithoutRight>(site.session()))};
  EXPECT_THROW(trail.add(wholeRecord()), RunTimeError);
  EXPECT_TRUE(trail.records().empty());
}

TEST(AuditTrail, TheViewIsToldOfEachRecord) {
  AuditTrail trail;
  int changes = 0;
  trail.onChange = [&] { ++changes; };
  trail.add(recordOf("Add"));
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace pelorin::host
