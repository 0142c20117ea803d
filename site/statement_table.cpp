#include "site/statement_table.h"

#include "site/embedded_files.h"
#include "site/errors.h"
#include "site/text_lines.h"

namespace pelorin::site {

namespace {

void replaceAll(std::string& text, std::string_view place, std::string_view sample) {
  for (std::size_t at = text.find(place); at != std::string::npos;
       at = text.find(place, at + sample.size())) {
    text.replace(at, place.size(), sample);
  }
}

[[noreturn]] void refuseStatementLine(std::string_view line) {
  throw databaseError("The table of statements does not understand '" + std::string(line) + "'.");
}

void readColumns(SiteStatement& statement, std::string_view names) {
  for (const std::string_view name : split(names, ',')) statement.columns.emplace_back(name);
}

void readLine(SiteStatement& statement, std::string_view line) {
  std::string_view rest = line;
  const std::string_view word = takeWord(rest);
  if (word.starts_with('"') && line.ends_with('"')) {
    statement.pattern = line.substr(1, line.size() - 2);
    statement.text = statement.pattern;
  } else if (word.starts_with('{') && rest.starts_with('=')) {
    const std::string_view sample = trim(rest.substr(1));
    statement.places.push_back({std::string(word), std::string(sample)});
    replaceAll(statement.text, word, sample);
  } else if (word == "columns") {
    readColumns(statement, rest);
  } else {
    refuseStatementLine(line);
  }
}

SiteStatement startEntry(std::string_view kind, std::string_view rest) {
  SiteStatement statement;
  statement.name = takeWord(rest);
  statement.writes = rest == "writes";
  statement.command = kind == "command";
  return statement;
}

}  // namespace

std::vector<SiteStatement> readStatements(std::string_view text) {
  std::vector<SiteStatement> statements;
  for (const std::string_view line : lines(text)) {
    std::string_view rest = line;
    if (trim(line).empty() || line.starts_with('#')) continue;
    if (const auto kind = takeWord(rest); kind == "statement" || kind == "command") {
      statements.push_back(startEntry(kind, rest));
    } else {
      if (statements.empty()) refuseStatementLine(line);
      readLine(statements.back(), trim(line));
    }
  }
  return statements;
}

const std::vector<SiteStatement>& siteStatements() {
  static const std::vector<SiteStatement> statements = [] {
    std::vector<SiteStatement> all;
    for (const EmbeddedFile& file : embeddedFiles("statements/")) {
      for (SiteStatement& statement : readStatements(file.text))
        all.push_back(std::move(statement));
    }
    return all;
  }();
  return statements;
}

}  // namespace pelorin::site
