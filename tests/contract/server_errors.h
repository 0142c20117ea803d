// Errors that every connection to a site has to give the same number.
#pragma once

#include <cstdint>
#include <ostream>

namespace pelorin::site {

struct ServerError {
  const char* name;
  const char* statement;  // that raises it
  const char* state;
  std::int32_t server;  // the server's own number
  std::int32_t ado;
};

inline void PrintTo(const ServerError& error, std::ostream* out) {
  *out << error.name;
}

inline constexpr ServerError serverErrors[]{
    {"syntax", "select * from Doors where", "42000", 102, -2147217900},
    {"unknownTable", "select * from Nowhere", "42S02", 208, -2147217865},
    {"unknownColumn", "select Colour from Doors", "42S22", 207, -2147217900},
    {"unknownProcedure", "exec NoSuchThing 1", "42000", 2812, -2147217900},
    {"missingParameter", "sp_FetchKumbos", "42000", 201, -2147217904},
    {"tooManyParameters", "exec TA_DeleteTrigger 1, 2", "42000", 8144, -2147217900},
    {"wrongType", "exec TA_DeleteTrigger 'abc'", "42000", 8114, -2147217913},
    {"tooLong",
     "exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A', 1, '123456789 123456789 123456789 123', 'x', 0, True",
     "22001", 8152, -2147217833},
    {"nullKey", "insert into Servers (ServerID, Server_Name) values (null, 'x')", "23000", 515,
     -2147217873},
    {"keyTwice", "insert into Servers (ServerID) values (1)", "23000", 2627, -2147217873}};

}  // namespace pelorin::site
