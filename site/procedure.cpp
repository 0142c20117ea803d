#include "site/procedure.h"

#include <algorithm>

#include "base/text_key.h"
#include "site/embedded_files.h"
#include "site/errors.h"
#include "site/text_lines.h"

namespace pelorin::site {

namespace {

constexpr std::string_view folder = "procedures/";
constexpr std::string_view extension = ".sql";

class ProcedureReader {
 public:
  ProcedureReader(std::string_view name, std::string_view text) {
    procedure_.name = name;
    for (const std::string_view line : lines(text)) readLine(line);
  }

  Procedure take() { return std::move(procedure_); }

 private:
  void readLine(std::string_view line) {
    if (line.starts_with("-- ")) {
      readHeader(line.substr(3));
    } else {
      if (server_) procedure_.serverBody.append(line).push_back('\n');
      if (embedded_) procedure_.embeddedBody.append(line).push_back('\n');
    }
  }

  void readHeader(std::string_view line) {
    std::string_view rest = line;
    const std::string_view word = takeWord(rest);
    if (word == "parameter") {
      readParameter(rest);
    } else if (word == "result") {
      const std::string_view name = takeWord(rest);
      procedure_.results.push_back({std::string(name), parseSqlType(rest)});
    } else if (word == "engine") {
      chooseEngine(rest);
    } else if (procedure_.purpose.empty()) {
      procedure_.purpose = line;
    } else {
      refuse(line);
    }
  }

  void readParameter(std::string_view rest) {
    const std::string_view name = takeWord(rest);
    const SqlType type = parseSqlType(takeWord(rest));
    if (!name.starts_with('@') || (!rest.empty() && rest != "output")) refuse(name);
    procedure_.parameters.push_back({std::string(name), type, rest == "output"});
  }

  void chooseEngine(std::string_view engine) {
    if (engine != "server" && engine != "embedded") refuse(engine);
    server_ = engine == "server";
    embedded_ = engine == "embedded";
  }

  [[noreturn]] void refuse(std::string_view line) const {
    throw databaseError("Procedure " + procedure_.name + ": '" + std::string(line) +
                        "' is not understood.");
  }

  Procedure procedure_;
  bool server_ = true;
  bool embedded_ = true;
};

std::vector<Procedure> readAll() {
  std::vector<Procedure> procedures;
  for (const EmbeddedFile& file : embeddedFiles(folder)) {
    std::string_view name = file.path;
    name.remove_prefix(folder.size());
    name.remove_suffix(extension.size());
    procedures.push_back(readProcedure(name, file.text));
  }
  return procedures;
}

}  // namespace

Procedure readProcedure(std::string_view name, std::string_view text) {
  return ProcedureReader(name, text).take();
}

const std::vector<Procedure>& siteProcedures() {
  static const std::vector<Procedure> procedures = readAll();
  return procedures;
}

const Procedure& findProcedure(std::string_view name) {
  for (const Procedure& procedure : siteProcedures()) {
    if (equalNoCase(procedure.name, name)) return procedure;
  }
  throw statementError("Could not find stored procedure '" + std::string(name) + "'.");
}

}  // namespace pelorin::site
