// The errors of the site database, with the numbers that ADO gives them.
#pragma once

#include <string>
#include <string_view>

#include "base/run_time_error.h"

namespace pelorin::site {

namespace ado_error {
inline constexpr std::int32_t statement = -2147217900;   // the statement is wrong
inline constexpr std::int32_t conversion = -2147217913;  // a value has the wrong type
inline constexpr std::int32_t overflow = -2147217833;    // a value is too large or too long
inline constexpr std::int32_t constraint = -2147217873;  // a key or a required column is violated
inline constexpr std::int32_t noTable = -2147217865;
inline constexpr std::int32_t missingParameter = -2147217904;
inline constexpr std::int32_t noPermission = -2147217911;
inline constexpr std::int32_t loginFailed = -2147217843;
inline constexpr std::int32_t timedOut = -2147217871;
inline constexpr std::int32_t failed = -2147467259;  // the database itself failed
}  // namespace ado_error

// The number that ADO gives a server's error: embedded and over every way to a server the same.
std::int32_t adoErrorNumber(std::int32_t serverNumber, std::string_view sqlState);

inline RunTimeError statementError(const std::string& description) {
  return {ado_error::statement, description};
}

inline RunTimeError syntaxError(std::string_view near) {
  return statementError("Incorrect syntax near '" + std::string(near) + "'.");
}

inline RunTimeError conversionError(std::string_view from, std::string_view to) {
  return {ado_error::conversion,
          "Error converting data type " + std::string(from) + " to " + std::string(to) + "."};
}

// A value of a column or parameter that does not take it whole.
inline RunTimeError truncationError() {
  return {ado_error::overflow, "String or binary data would be truncated."};
}

inline RunTimeError nullError(std::string_view table, std::string_view column) {
  return {ado_error::constraint, "Cannot insert the value NULL into column '" +
                                     std::string(column) + "', table '" + std::string(table) +
                                     "'; column does not allow nulls."};
}

inline RunTimeError databaseError(const std::string& description) {
  return {ado_error::failed, description};
}

}  // namespace pelorin::site
