#include "site/embedded_schema.h"

namespace pelorin::site {

namespace {

std::string nameList(const ColumnNames& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + quotedName(name);
  return list;
}

std::string columnType(const Column& column) {
  // Texts are compared without regard to case, as on the server.
  if (column.type.isText()) {
    return "nvarchar(" + std::to_string(column.type.length) + ") collate nocase";
  }
  return sqlTypeText(column.type);
}

bool isOnlyKey(const Table& table, const Column& column) {
  return table.key.size() == 1 && table.key.front() == column.name;
}

std::string columnDefinition(const Table& table, const Column& column) {
  const std::string name = quotedName(column.name);
  // "integer" makes the column the engine's own row number, the cheapest key there is.
  if (column.identity) return name + " integer primary key autoincrement";
  if (isOnlyKey(table, column)) return name + " integer primary key";
  return name + " " + columnType(column) + (column.required ? " not null" : "");
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
  const bool ownKey = table.key.size() > 1;
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
