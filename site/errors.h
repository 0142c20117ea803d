// The errors of the site database, with the numbers that ADO gives them.
#pragma once

#include <string>
#include <string_view>

#include "controls/run_time_error.h"

namespace pelorin::site {

namespace ado_error {
inline constexpr std::int32_t statement = -2147217900;   // the statement is wrong
inline constexpr std::int32_t conversion = -2147217913;  // a value has the wrong type
inline constexpr std::int32_t constraint = -2147217873;  // a key or a required column is violated
inline constexpr std::int32_t failed = -2147467259;      // the database itself failed
}  // namespace ado_error

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

inline RunTimeError databaseError(const std::string& description) {
  return {ado_error::failed, description};
}

}  // namespace pelorin::site
