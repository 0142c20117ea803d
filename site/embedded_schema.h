// The embedded engine's form of the tables.
#pragma once

#include <string>
#include <string_view>

#include "site/schema.h"

namespace pelorin::site {

// A name in double quotes.
std::string quotedName(std::string_view name);
// "create table" and "create index" statements, each ended by a semicolon.
std::string embeddedDefinition(const Table& table);
std::string embeddedInsert(const Table& table, const ColumnNames& columns);

}  // namespace pelorin::site
