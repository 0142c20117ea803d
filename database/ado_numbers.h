// ADO's numbers, as its documentation has them: what the component sends and understands, and what
// the connections that stand in ADO's place answer.
#pragma once

#include <cstdint>

namespace pelorin::ado {

namespace state {
inline constexpr std::int32_t closed = 0;
inline constexpr std::int32_t open = 1;  // a bit
}  // namespace state

namespace command_type {
inline constexpr std::int32_t text = 1;
inline constexpr std::int32_t storedProcedure = 4;
inline constexpr std::int32_t unknown = 8;
inline constexpr std::int32_t noRecords = 0x80;
}  // namespace command_type

namespace data_type {
inline constexpr std::int32_t smallInt = 2;
inline constexpr std::int32_t integer = 3;
inline constexpr std::int32_t single = 4;
inline constexpr std::int32_t real = 5;
inline constexpr std::int32_t date = 7;
inline constexpr std::int32_t boolean = 11;
inline constexpr std::int32_t tinyInt = 16;
inline constexpr std::int32_t bigInt = 20;
inline constexpr std::int32_t text = 202;
}  // namespace data_type

namespace direction {
inline constexpr std::int32_t input = 1;
inline constexpr std::int32_t output = 2;
inline constexpr std::int32_t inputOutput = 3;
}  // namespace direction

namespace error {
inline constexpr std::int32_t invalidArgument = 3001;
inline constexpr std::int32_t noCurrentRecord = 3021;
inline constexpr std::int32_t notSupported = 3251;
inline constexpr std::int32_t itemNotFound = 3265;
inline constexpr std::int32_t objectClosed = 3704;
inline constexpr std::int32_t objectOpen = 3705;
inline constexpr std::int32_t invalidConnection = 3709;
// What the provider of a SQL Server answers.
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
}  // namespace error

}  // namespace pelorin::ado
