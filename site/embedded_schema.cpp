#include "site/embedded_schema.h"

#include <algorithm>

#include "site/engine.h"

namespace pelorin::site {

namespace {

std::string nameList(const ColumnNames& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + quotedName(name);
  return list;
}

std::string columnType(const Column& column) {
  if (column.type.isText()) {
    return "nvarchar(" + std::to_string(column.type.length) + ") collate " + serverCollation;
  }
  return sqlTypeText(column.type);
}

std::string columnDefinition(const Table& table, const Column& column) {
  const std::string name = quotedName(column.name);
  if (column.identity) return name + " integer primary key autoincrement";
  const bool isKey = std::find(table.key.begin(), table.key.end(), column.name) != table.key.end();
  return name + " " + columnType(column) + (column.required || isKey ? " not null" : "");
}

std::string indexName(const Table& table, const ColumnNames& columns) {
  std::string name = "IX_" + table.name;
  for (const std::string& column : columns) name += "_" + column;
  return quotedName(name);
}

}  // namespace

std::string quotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

std::string embeddedDefinition(const Table& table) {
  std::string sql = "create table " + quotedName(table.name) + " (";
  for (const Column& column : table.columns) {
    if (&column != &table.columns.front()) sql += ", ";
    sql += columnDefinition(table, column);
  }
  // A lone "integer" key would be the engine's row number, which takes a null and numbers the row.
  const bool ownKey = !table.hasIdentity();
  if (ownKey) sql += ", primary key (" + nameList(table.key) + ")";
  sql += ownKey ? ") without rowid;" : ");";
  for (const ColumnNames& index : table.indexes) {
    sql += "create index " + indexName(table, index) + " on " + quotedName(table.name) + " (" +
           nameList(index) + ");";
  }
  return sql;
}

std::string embeddedInsert(const Table& table, const ColumnNames& columns) {
  std::string places;
  for (std::size_t at = 0; at < columns.size(); ++at) places += at == 0 ? "?" : ", ?";
  return "insert into " + quotedName(table.name) + " (" + nameList(columns) + ") values (" +
         places + ")";
}

}  // namespace pelorin::site
