// The errors of the site database, with the numbers that ADO gives them.
#pragma once

#include <string>
#include <string_view>

#include "base/run_time_error.h"
#include "database/ado_numbers.h"

namespace pelorin::site {

// The number that ADO gives a server's error: embedded and over every way to a server the same.
std::int32_t adoErrorNumber(std::int32_t serverNumber, std::string_view sqlState);

inline RunTimeError statementError(const std::string& description) {
  return {ado::error::statement, description};
}

inline RunTimeError syntaxError(std::string_view near) {
  return statementError("Incorrect syntax near '" + std::string(near) + "'.");
}

inline RunTimeError conversionError(std::string_view from, std::string_view to) {
  return {ado::error::conversion,
          "Error converting data type " + std::string(from) + " to " + std::string(to) + "."};
}

// A value of a column or parameter that does not take it whole.
inline RunTimeError truncationError() {
  return {ado::error::overflow, "String or binary data would be truncated."};
}

inline RunTimeError nullError(std::string_view table, std::string_view column) {
  return {ado::error::constraint, "Cannot insert the value NULL into column '" +
                                      std::string(column) + "', table '" + std::string(table) +
                                      "'; column does not allow nulls."};
}

inline RunTimeError databaseError(const std::string& description) {
  return {ado::error::failed, description};
}

}  // namespace pelorin::site
