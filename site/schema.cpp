#include "site/schema.h"

#include <algorithm>

#include "base/text_key.h"
#include "site/embedded_files.h"
#include "site/errors.h"
#include "site/text_lines.h"

namespace pelorin::site {

namespace {

[[noreturn]] void refuseTableLine(std::string_view line) {
  throw databaseError("The table description does not understand '" + std::string(line) + "'.");
}

Column readColumn(std::string_view name, std::string_view rest) {
  Column column{std::string(name), parseSqlType(takeWord(rest))};
  if (rest == "identity") {
    column.identity = true;
    column.required = true;
  } else if (rest == "required") {
    column.required = true;
  } else if (!rest.empty()) {
    refuseTableLine(rest);
  }
  return column;
}

ColumnNames readNames(const Table& table, std::string_view text) {
  ColumnNames names;
  for (const std::string_view name : split(text, ',')) {
    if (!table.column(name)) refuseTableLine(text);
    names.emplace_back(name);
  }
  return names;
}

}  // namespace

const Column* Table::column(std::string_view wanted) const {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& column) {
    return equalNoCase(column.name, wanted);
  });
  return found == columns.end() ? nullptr : &*found;
}

bool Table::hasIdentity() const {
  return std::any_of(columns.begin(), columns.end(),
                     [](const Column& column) { return column.identity; });
}

void Schema::read(std::string_view text) {
  for (const std::string_view line : lines(text)) {
    if (!trim(line).empty() && !line.starts_with('#')) readLine(line);
  }
}

void Schema::readLine(std::string_view line) {
  std::string_view rest = line;
  const std::string_view word = takeWord(rest);
  if (!line.starts_with(' ')) {
    if (word != "table") refuseTableLine(line);
    const std::string_view name = takeWord(rest);
    tables_.push_back({std::string(name), std::string(rest), {}, {}, {}});
    return;
  }
  if (tables_.empty()) refuseTableLine(line);
  Table& table = tables_.back();
  if (word == "key") {
    table.key = readNames(table, rest);
  } else if (word == "index") {
    table.indexes.push_back(readNames(table, rest));
  } else {
    table.columns.push_back(readColumn(word, rest));
  }
}

const Table* Schema::table(std::string_view name) const {
  const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const Table& table) {
    return equalNoCase(table.name, name);
  });
  return found == tables_.end() ? nullptr : &*found;
}

const Schema& siteSchema() {
  static const Schema schema = [] {
    Schema result;
    for (const EmbeddedFile& file : embeddedFiles("schema/")) result.read(file.text);
    return result;
  }();
  return schema;
}

}  // namespace pelorin::site
