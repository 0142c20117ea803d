// ODBC over SQLite's driver, natively and under Wine.
#pragma once

#include <clocale>

#include "host/odbc/odbc_connection.h"
#include "host/odbc/odbc_handle.h"
#include "test_paths.h"
#include "tests/contract/connection_contract.h"

namespace pelorin::test {

class OverOdbc : public ContractSubject {
 public:
  OverOdbc() {
    // This driver has no wide calls: unixODBC converts for it, to the encoding of the locale.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    database_.execute(
        "create table DVR_ViewGroups (ID int primary key, Description nvarchar(255))");
  }
  Connection& connection() override { return database_; }
  void raise(const site::ServerError& error) override {
    try {
      host::throwOdbcError({{"what the server said", error.server, error.state}});
    } catch (const host::DatabaseError& raised) {
      EXPECT_EQ(raised.messages().at(0).nativeNumber, error.server);
      throw;
    }
  }

 private:
  // The driver reads row by row only when it is told to.
  host::OdbcConnection database_{"Driver=" PELORIN_SQLITE_ODBC ";Database=:memory:;StepAPI=1"};
};

inline ConnectionKind odbcKind() {
  return kindOf<OverOdbc>("OverOdbc",
                          {{Ability::Procedures, "SQLite's driver has no procedures"},
                           {Ability::TextComparison, "SQLite compares texts byte by byte"},
                           {Ability::KeysWithoutNulls, "SQLite lets a null into a key"}});
}

}  // namespace pelorin::test
