#include "tests/journeys/sent_statements.h"

#include <algorithm>

namespace pelorin::test {

namespace {

constexpr std::string_view digits = "-.0123456789";
constexpr std::string_view letters =
    "_0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

std::string_view sampleOf(const site::SiteStatement& statement, std::string_view place) {
  for (const site::StatementPlace& known : statement.places) {
    if (known.name == place) return known.sample;
  }
  return {};
}

bool isNumber(std::string_view text) {
  return text.find_first_not_of(digits) == std::string_view::npos;
}

std::size_t literalLength(std::string_view sent, std::string_view sample, bool quoted) {
  const std::size_t end =
      quoted ? sent.find('\'') : sent.find_first_not_of(isNumber(sample) ? digits : letters);
  return std::min(end, sent.size());
}

}  // namespace

std::unique_ptr<Cursor> RecordedConnection::openCursor(std::string_view sql) {
  statements.emplace(sql);
  return FaultyConnection::openCursor(sql);
}

void RecordedConnection::run(std::string_view sql) {
  statements.emplace(sql);
  FaultyConnection::run(sql);
}

void RecordedConnection::call(ProcedureCall& call) {
  commands.insert(commandText(call));
  FaultyConnection::call(call);
}

std::string commandText(const ProcedureCall& call) {
  std::string text = call.procedure;
  for (const ProcedureParameter& parameter : call.parameters) {
    text += " " + parameter.name;
    text += parameter.type == ParameterType::Double ? ":double" : ":integer";
    if (parameter.direction == ParameterDirection::Output) text += ":output";
  }
  return text;
}

bool isSentAs(const site::SiteStatement& statement, std::string_view sent) {
  std::string_view pattern = statement.pattern;
  bool quoted = false;
  while (!pattern.empty()) {
    if (pattern.front() == '{') {
      const std::string_view place = pattern.substr(0, pattern.find('}') + 1);
      const std::size_t length = literalLength(sent, sampleOf(statement, place), quoted);
      if (length == 0 && !quoted) return false;
      pattern.remove_prefix(place.size());
      sent.remove_prefix(length);
    } else {
      if (sent.empty() || sent.front() != pattern.front()) return false;
      if (pattern.front() == '\'') quoted = !quoted;
      pattern.remove_prefix(1);
      sent.remove_prefix(1);
    }
  }
  return sent.empty();
}

}  // namespace pelorin::test
