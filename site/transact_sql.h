// The site database as Transact-SQL for SQL Server 2012 and later: batches of plain statements that
// can be run again and leave alone what is there already.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "site/procedure.h"
#include "site/schema.h"

namespace pelorin::site {

// Takes one batch, without its closing "go".
using BatchSink = std::function<void(const std::string&)>;

std::string bracketed(std::string_view name);
std::string bracketedList(const ColumnNames& names);
// Characters beyond ASCII as nchar(n), so that no tool's code page can spoil them.
std::string serverText(std::string_view text);
std::string serverLiteral(const SqlType& type, const Value& value);

// The table and its indexes, each made when it is missing.
void writeTable(const Table& table, const BatchSink& sink);
// The procedure, made when it is missing.
void writeProcedure(const Procedure& procedure, const BatchSink& sink);
// What `create procedure` says, without the condition.
std::string procedureDefinition(const Procedure& procedure);

}  // namespace pelorin::site
