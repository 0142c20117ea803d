// Owners for ODBC handles, and the errors of the calls on them.
#pragma once

#include <utility>
#include <vector>

#include "host/core/result_connection.h"
#include "host/odbc/odbc_api.h"

namespace pelorin::host {

template <SQLSMALLINT type>
class OdbcHandle {
 public:
  // The error of a failed allocation is read from the parent.
  template <class Parent>
  explicit OdbcHandle(const Parent& parent);
  OdbcHandle();
  ~OdbcHandle() { SQLFreeHandle(type, handle_); }
  OdbcHandle(const OdbcHandle&) = delete;
  OdbcHandle& operator=(const OdbcHandle&) = delete;

  SQLHANDLE get() const noexcept { return handle_; }

  // Everything the last call on the handle left behind.
  std::vector<ServerMessage> diagnostics() const;
  // Passes a good result on and throws DatabaseError for the others.
  SQLRETURN check(SQLRETURN result) const;

 private:
  SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

std::vector<ServerMessage> readDiagnostics(SQLSMALLINT type, SQLHANDLE handle);
[[noreturn]] void throwOdbcError(std::vector<ServerMessage> messages);

template <SQLSMALLINT type>
template <class Parent>
OdbcHandle<type>::OdbcHandle(const Parent& parent) {
  parent.check(SQLAllocHandle(type, parent.get(), &handle_));
}

template <SQLSMALLINT type>
OdbcHandle<type>::OdbcHandle() {
  if (!SQL_SUCCEEDED(SQLAllocHandle(type, SQL_NULL_HANDLE, &handle_))) throwOdbcError({});
}

template <SQLSMALLINT type>
std::vector<ServerMessage> OdbcHandle<type>::diagnostics() const {
  return readDiagnostics(type, handle_);
}

template <SQLSMALLINT type>
SQLRETURN OdbcHandle<type>::check(SQLRETURN result) const {
  if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) throwOdbcError(diagnostics());
  return result;
}

using OdbcEnvironment = OdbcHandle<SQL_HANDLE_ENV>;
using OdbcSession = OdbcHandle<SQL_HANDLE_DBC>;
using OdbcStatement = OdbcHandle<SQL_HANDLE_STMT>;

}  // namespace pelorin::host
