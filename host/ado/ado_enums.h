// The numbers of ADO that these objects give and take, and the classes they stand in for.
#pragma once

#include <cstdint>

#include "win32/text/windows_api.h"

namespace pelorin::host::ado {

constexpr GUID adoId(unsigned long number) {
  return {number, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x6D, 0x2E, 0xA4}};
}
inline constexpr CLSID commandClass = adoId(0x00000507);
inline constexpr CLSID connectionClass = adoId(0x00000514);
inline constexpr CLSID recordsetClass = adoId(0x00000535);
// _Connection before and since the change of its 64-bit parameters.
inline constexpr IID oldConnectionInterface = adoId(0x00000550);
inline constexpr IID connectionInterface = adoId(0x00001550);

namespace state {
inline constexpr std::int32_t closed = 0;
inline constexpr std::int32_t open = 1;
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
}  // namespace error

// Throws the error with ADO's own words.
[[noreturn]] void fail(std::int32_t number);

}  // namespace pelorin::host::ado
