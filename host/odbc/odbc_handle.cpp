#include "host/odbc/odbc_handle.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "host/odbc/odbc_text.h"
#include "site/errors.h"

namespace pelorin::host {

namespace {

bool readDiagnostic(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT record,
                    ServerMessage& message) {
  std::array<SQLWCHAR, SQL_SQLSTATE_SIZE + 1> state{};
  std::array<SQLWCHAR, 4096> text{};
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN result = SQLGetDiagRecW(type, handle, record, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
  if (!SQL_SUCCEEDED(result)) return false;
  const auto kept =
      std::min(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), text.size() - 1);
  message.text = utf8Text(text.data(), kept);
  message.nativeNumber = static_cast<std::int32_t>(native);
  message.sqlState = utf8Text(state.data(), SQL_SQLSTATE_SIZE);
  return true;
}

}  // namespace

std::vector<ServerMessage> readDiagnostics(SQLSMALLINT type, SQLHANDLE handle) {
  std::vector<ServerMessage> messages;
  ServerMessage message;
  while (readDiagnostic(type, handle, static_cast<SQLSMALLINT>(messages.size() + 1), message)) {
    messages.push_back(message);
  }
  return messages;
}

void throwOdbcError(std::vector<ServerMessage> messages) {
  if (messages.empty()) messages.push_back({"The ODBC driver failed without a message.", 0, {}});
  const ServerMessage& first = messages.front();
  const std::int32_t number = site::adoErrorNumber(first.nativeNumber, first.sqlState);
  throw DatabaseError(number, std::move(messages));
}

}  // namespace pelorin::host
