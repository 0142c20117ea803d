#include "site/transact_sql.h"

#include "base/utf.h"

namespace pelorin::site {

namespace {

std::string object(std::string_view name) {
  return "dbo." + bracketed(name);
}

// N'dbo.[name]'
std::string objectName(std::string_view name) {
  return "N'" + object(name) + "'";
}

std::string serverColumnType(const SqlType& type) {
  return type.isText() ? "nvarchar(" + std::to_string(type.length) + ")" : sqlTypeText(type);
}

// Wider than the column, because the server cuts a text that is too long for a parameter without a
// word, while an insert into the column fails as it should.
std::string parameterType(const Parameter& parameter) {
  if (parameter.type.isText() && !parameter.output) return "nvarchar(max)";
  return serverColumnType(parameter.type);
}

std::string columnDefinition(const Column& column) {
  return "  " + bracketed(column.name) + " " + serverColumnType(column.type) +
         (column.identity ? " identity(1, 1)" : "") + (column.required ? " not null" : " null");
}

std::string plainIndexName(const Table& table, const ColumnNames& columns) {
  std::string name = "IX_" + table.name;
  for (const std::string& column : columns) name += "_" + column;
  return name;
}

void writeIndex(const Table& table, const ColumnNames& columns, const BatchSink& sink) {
  const std::string name = plainIndexName(table, columns);
  sink("if object_id(" + objectName(table.name) + ", N'U') is not null and not exists (\n" +
       "  select 1 from sys.indexes where object_id = object_id(" + objectName(table.name) +
       ") and name = N'" + name + "')\ncreate index " + bracketed(name) + " on " +
       object(table.name) + " (" + bracketedList(columns) + ")");
}

std::string ncharCall(char32_t code) {
  return "nchar(" + std::to_string(code) + ")";
}

// A character beyond the first plane is two units for the server.
std::string ncharCalls(char32_t code) {
  if (code < firstSupplementary) return ncharCall(code);
  return ncharCall(highHalf(code)) + " + " + ncharCall(lowHalf(code));
}

}  // namespace

std::string bracketed(std::string_view name) {
  std::string text = "[";
  for (const char c : name) text.append(c == ']' ? 2 : 1, c);
  return text + "]";
}

std::string bracketedList(const ColumnNames& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + bracketed(name);
  return list;
}

std::string serverText(std::string_view text) {
  std::string result = "N'";
  while (!text.empty()) {
    const char32_t character = takeCharacter(text);
    const bool plain = character >= U' ' && character < 0x7F;
    if (plain) {
      result.append(character == U'\'' ? 2 : 1, static_cast<char>(character));
    } else {
      result += "' + " + ncharCalls(character) + " + N'";
    }
  }
  return result + "'";
}

std::string serverLiteral(const SqlType& type, const Value& value) {
  if (isNull(value)) return "null";
  if (type.isText()) return serverText(toText(value));
  if (type.kind == SqlType::Kind::Bit) return toBoolean(value) ? "1" : "0";
  if (type.kind == SqlType::Kind::Float) return numberText(toReal(value)) + "e0";
  return numberText(toInt64(value));
}

void writeTable(const Table& table, const BatchSink& sink) {
  std::string sql = "if object_id(" + objectName(table.name) + ") is null\ncreate table " +
                    object(table.name) + " (\n";
  for (const Column& column : table.columns) sql += columnDefinition(column) + ",\n";
  sql += "  constraint " + bracketed("PK_" + table.name) + " primary key (" +
         bracketedList(table.key) + ")\n)";
  sink(sql);
  for (const ColumnNames& index : table.indexes) writeIndex(table, index, sink);
}

std::string procedureDefinition(const Procedure& procedure) {
  std::string sql = "create procedure " + object(procedure.name);
  for (const Parameter& parameter : procedure.parameters) {
    sql += &parameter == &procedure.parameters.front() ? "\n  " : ",\n  ";
    sql += parameter.name + " " + parameterType(parameter) + (parameter.output ? " output" : "");
  }
  return sql + "\nas\nset nocount on;\n" + procedure.serverBody;
}

// A definition must be a batch of its own, so that a conditional one can only be a text.
void writeProcedure(const Procedure& procedure, const BatchSink& sink) {
  std::string text;
  for (const char c : procedureDefinition(procedure)) text.append(c == '\'' ? 2 : 1, c);
  sink("if object_id(" + objectName(procedure.name) + ") is null\nexec (N'" + text + "')");
}

}  // namespace pelorin::site
