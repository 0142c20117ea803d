#include "host/core/audit_trail.h"

#include <gtest/gtest.h>

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

TEST(AuditTrail, TheViewIsToldOfEachRecord) {
  AuditTrail trail;
  int changes = 0;
  trail.onChange = [&] { ++changes; };
  trail.add(recordOf("Add"));
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace pelorin::host
