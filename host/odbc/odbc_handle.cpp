#include "host/odbc/odbc_handle.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "host/odbc/odbc_text.h"

namespace pelorin::host {

namespace {

// The numbers that programs know from ADO.
constexpr std::int32_t unspecified = static_cast<std::int32_t>(0x80004005);
constexpr std::int32_t errorInCommand = static_cast<std::int32_t>(0x80040E14);
constexpr std::int32_t integrityViolation = static_cast<std::int32_t>(0x80040E2F);
constexpr std::int32_t dataOverflow = static_cast<std::int32_t>(0x80040E57);
constexpr std::int32_t loginFailed = static_cast<std::int32_t>(0x80040E4D);

std::int32_t adoNumber(const std::string& sqlState) {
  if (sqlState.starts_with("23")) return integrityViolation;
  if (sqlState.starts_with("22")) return dataOverflow;
  if (sqlState.starts_with("28")) return loginFailed;
  if (sqlState.starts_with("42") || sqlState.starts_with("37") || sqlState.starts_with("S0")) {
    return errorInCommand;
  }
  return unspecified;
}

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
  const std::int32_t number = adoNumber(messages.front().sqlState);
  throw DatabaseError(number, std::move(messages));
}

}  // namespace pelorin::host
