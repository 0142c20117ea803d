// ADO's classes and interfaces; its numbers stand in database/ado_numbers.h.
#pragma once

#include <windows.h>

namespace pelorin::ado {

constexpr GUID id(unsigned long number) {
  return {number, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x6D, 0x2E, 0xA4}};
}
inline constexpr CLSID commandClass = id(0x00000507);
inline constexpr CLSID connectionClass = id(0x00000514);
inline constexpr CLSID recordsetClass = id(0x00000535);
inline constexpr IID oldConnectionInterface = id(0x00000550);
inline constexpr IID connectionInterface = id(0x00001550);
// Every version's, the oldest included.
inline constexpr IID connectionInterfaces[] = {oldConnectionInterface, connectionInterface,
                                               id(0x00000515), id(0x00001515)};

}  // namespace pelorin::ado
