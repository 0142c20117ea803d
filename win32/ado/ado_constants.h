// The few of ADO's numbers that the component uses.
#pragma once

#include <windows.h>

#include <cstdint>

namespace pelorin::ado {

// CommandTypeEnum and ExecuteOptionEnum, which are combined in one argument.
inline constexpr std::int32_t commandText = 1;
inline constexpr std::int32_t commandStoredProcedure = 4;
inline constexpr std::int32_t executeNoRecords = 0x80;

// DataTypeEnum.
inline constexpr std::int32_t typeInteger = 3;
inline constexpr std::int32_t typeDouble = 5;

// ParameterDirectionEnum.
inline constexpr std::int32_t parameterInput = 1;
inline constexpr std::int32_t parameterOutput = 2;

// ObjectStateEnum.
inline constexpr std::int32_t stateClosed = 0;
inline constexpr std::int32_t stateOpen = 1;  // a bit

// "Operation is not allowed when the object is closed."
inline constexpr std::int32_t objectClosed = 3704;

constexpr GUID id(unsigned long number) {
  return {number, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x6D, 0x2E, 0xA4}};
}
inline constexpr CLSID commandClass = id(0x00000507);
// _Connection and Connection15 as they were up to Windows 7, and as they are since its SP1.
inline constexpr IID connectionInterfaces[] = {id(0x00000550), id(0x00001550), id(0x00000515),
                                               id(0x00001515)};

}  // namespace pelorin::ado
