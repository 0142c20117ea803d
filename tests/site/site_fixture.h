// A demonstration site in memory and short ways to ask it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/run_time_error.h"
#include "database/connection.h"
#include "site/site_database.h"
#include "tests/site/fresh_site.h"

namespace pelorin {

// All cells of a result as text, row after row.
inline std::vector<std::vector<std::string>> allRows(Connection& connection, std::string_view sql,
                                                     const std::vector<std::string>& columns) {
  std::vector<std::vector<std::string>> rows;
  RecordSet records = connection.open(sql);
  while (records.next()) {
    rows.emplace_back();
    for (const std::string& column : columns) rows.back().push_back(records.text(column));
  }
  return rows;
}

class SiteTest : public testing::Test {
 protected:
  std::string one(std::string_view sql) {
    RecordSet records = connection_->open(sql);
    return records.next() ? records.text(0) : "(no row)";
  }
  std::int64_t count(const std::string& table) {
    RecordSet records = connection_->open("select count(*) from " + table);
    records.next();
    return toInt64(records.value(0));
  }
  // What the error says; empty when there is none.
  std::string failure(std::string_view sql) {
    try {
      connection_->execute(sql);
    } catch (const RunTimeError& error) {
      return error.description();
    }
    return "";
  }

  SiteDatabase site_ = test::freshDemonstration();
  std::unique_ptr<Connection> connection_ = site_.connect();
};

}  // namespace pelorin
