// Errors that every connection to a site has to give the same number.
#pragma once

#include <cstdint>
#include <ostream>

namespace pelorin::site {

struct ServerError {
  const char* name;
  const char* statement;  // that raises it
  std::int32_t server;    // the server's own number
  const char* state;
  std::int32_t ado;
};

inline void PrintTo(const ServerError& error, std::ostream* out) {
  *out << error.name;
}

inline constexpr ServerError serverErrors[]{
    {"syntax", "select * from Doors where", 102, "42000", -2147217900},
    {"unknownTable", "select * from Nowhere", 208, "42S02", -2147217865},
    {"unknownColumn", "select Colour from Doors", 207, "42S22", -2147217900},
    {"unknownProcedure", "exec NoSuchThing 1", 2812, "42000", -2147217900},
    {"missingParameter", "sp_FetchKumbos", 201, "42000", -2147217904},
    {"tooManyParameters", "exec TA_DeleteTrigger 1, 2", 8144, "42000", -2147217900},
    {"wrongType", "exec TA_DeleteTrigger 'abc'", 8114, "42000", -2147217913},
    {"tooLong",
     "exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A', 1, '123456789 123456789 123456789 123', 'x', 0, True",
     8152, "22001", -2147217833},
    {"nullKey", "insert into Servers (ServerID, Server_Name) values (null, 'x')", 515, "23000",
     -2147217873},
    {"keyTwice", "insert into Servers (ServerID) values (1)", 2627, "23000", -2147217873}};

}  // namespace pelorin::site
