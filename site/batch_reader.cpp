#include "site/batch_reader.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <set>
#include <utility>

#include "base/text_key.h"
#include "site/embedded_schema.h"
#include "site/errors.h"
#include "site/sql_tokens.h"

namespace pelorin::site {

namespace {

using Words = std::set<std::string, std::less<>>;

// Words that go to the engine as they are. Every other word is a name and goes there in quotes, so
// that no word of the engine's own language can be reached.
const Words& keywords() {
  static const Words words{"all",    "and",    "as",       "asc",   "between", "by",     "case",
                           "delete", "desc",   "distinct", "else",  "end",     "exists", "from",
                           "group",  "having", "in",       "inner", "insert",  "into",   "is",
                           "join",   "left",   "like",     "not",   "null",    "on",     "or",
                           "order",  "outer",  "select",   "set",   "then",    "union",  "update",
                           "values", "when",   "where"};
  return words;
}

const Words& functions() {
  static const Words words{"abs", "avg", "coalesce", "count", "lower",
                           "max", "min", "nullif",   "sum",   "upper"};
  return words;
}

const Words& otherStatements() {
  static const Words words{"alter",    "backup", "begin",    "close", "commit", "create",
                           "declare",  "deny",   "drop",     "fetch", "goto",   "grant",
                           "if",       "merge",  "open",     "print", "return", "raiserror",
                           "restore",  "revoke", "rollback", "save",  "set",    "shutdown",
                           "truncate", "use",    "waitfor",  "while", "with"};
  return words;
}

[[noreturn]] void refuse(const Token& token) {
  if (token.kind == Token::Kind::Broken) throw statementError(token.text);
  if (token.kind == Token::Kind::End) {
    throw statementError("Incorrect syntax at the end of the statement.");
  }
  throw syntaxError(token.text);
}

bool isWord(const Token& token, std::string_view word) {
  return token.kind == Token::Kind::Word && equalNoCase(token.text, word);
}

std::string quotedText(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) quoted.append(c == '\'' ? 2 : 1, c);
  return quoted + "'";
}

// Decimal whatever its leading zeros; whole numbers stay whole.
Value numberValue(const Token& token, bool negative) {
  const char* const first = token.text.data();
  const char* const last = first + token.text.size();
  std::int64_t whole = 0;
  if (const auto [end, error] = std::from_chars(first, last, whole);
      error == std::errc() && end == last) {
    return negative ? -whole : whole;
  }
  double real = 0;
  const auto [end, error] = std::from_chars(first, last, real);
  if (error != std::errc()) {
    throw statementError("The number '" + token.text + "' is out of range.");
  }
  if (end != last) throw syntaxError(token.text);
  return negative ? -real : real;
}

class Reader {
 public:
  explicit Reader(std::string_view sql) : tokens_(tokenize(sql)) {}

  Batch read() {
    const Token& first = tokens_.front();
    if (first.kind == Token::Kind::Word) {
      const std::string word = lowerCase(first.text);
      if (word == "exec" || word == "execute") {
        ++at_;
        return call();
      }
      if (word == "select" || word == "insert" || word == "update" || word == "delete") {
        return statement();
      }
      if (otherStatements().contains(word)) {
        throw statementError("The statement '" + first.text + "' is not run here.");
      }
      if (keywords().contains(word)) throw syntaxError(first.text);
    }
    return call();
  }

 private:
  const Token& token() const { return tokens_[at_]; }
  const Token& following() const { return tokens_[std::min(at_ + 1, tokens_.size() - 1)]; }

  bool take(std::string_view symbol) {
    if (!token().isSymbol(symbol)) return false;
    ++at_;
    return true;
  }

  CallText call() {
    if (token().kind != Token::Kind::Word && token().kind != Token::Kind::Name) refuse(token());
    CallText result{token().text, {}};
    ++at_;
    if (!atEnd()) {
      do {
        result.arguments.push_back(argument());
      } while (take(","));
    }
    if (!atEnd()) refuse(token());
    return result;
  }

  // The end of the statement, a last semicolon included.
  bool atEnd() {
    if (token().isSymbol(";") && following().kind == Token::Kind::End) ++at_;
    return token().kind == Token::Kind::End;
  }

  Argument argument() {
    Argument result;
    if (token().kind == Token::Kind::Variable) {
      if (!following().isSymbol("=")) {
        throw statementError("Must declare the scalar variable \"" + token().text + "\".");
      }
      result.name = token().text;
      at_ += 2;
    }
    result.value = argumentValue();
    return result;
  }

  Value argumentValue() {
    const bool negative = take("-");
    const bool isSigned = negative || take("+");
    const Token& value = token();
    ++at_;
    if (value.kind == Token::Kind::Number) return numberValue(value, negative);
    if (isSigned) refuse(value);
    switch (value.kind) {
      case Token::Kind::Text:
      case Token::Kind::Name:
        return value.text;
      case Token::Kind::Word:
        return wordValue(value);
      default:
        refuse(value);
    }
  }

  // A bare word in a call is a text, such as True.
  static Value wordValue(const Token& word) {
    const std::string lower = lowerCase(word.text);
    if (lower == "null") return Null{};
    if (keywords().contains(lower) || otherStatements().contains(lower) || lower == "exec" ||
        lower == "execute") {
      refuse(word);
    }
    return word.text;
  }

  EngineText statement() {
    while (!atEnd()) translate();
    return {std::move(sql_)};
  }

  void append(std::string_view text) {
    if (!sql_.empty()) sql_ += ' ';
    sql_ += text;
  }

  void translate() {
    const Token& current = token();
    switch (current.kind) {
      case Token::Kind::Word:
        translateWord(current);
        return;
      case Token::Kind::Name:
        append(name(current));
        break;
      case Token::Kind::Text:
        append(quotedText(current.text));
        break;
      case Token::Kind::Number:
        append(toText(numberValue(current, false)));
        break;
      case Token::Kind::Symbol:
        if (skipTableHint()) return;
        if (current.text == "+" || current.text == ";") refuse(current);
        append(current.text);
        break;
      case Token::Kind::Variable:
        throw statementError("Must declare the scalar variable \"" + current.text + "\".");
      default:
        refuse(current);
    }
    ++at_;
  }

  void translateWord(const Token& word) {
    const std::string lower = lowerCase(word.text);
    const bool keyword = keywords().contains(lower);
    if (!keyword && following().isSymbol("(") && !isNolock(at_ + 1) && !afterInto()) {
      if (!functions().contains(lower)) {
        throw statementError("'" + word.text + "' is not a recognized built-in function name.");
      }
      append(lower);
    } else {
      append(keyword ? lower : name(word));
    }
    ++at_;
  }

  // The columns of an insert follow the table's name in parentheses, as a function's arguments do.
  bool afterInto() const { return at_ > 0 && isWord(tokens_[at_ - 1], "into"); }

  bool isNolock(std::size_t at) const {
    return at + 2 < tokens_.size() && tokens_[at].isSymbol("(") &&
           isWord(tokens_[at + 1], "nolock") && tokens_[at + 2].isSymbol(")");
  }

  // The engine has no locks that a reader could skip.
  bool skipTableHint() {
    if (!isNolock(at_)) return false;
    at_ += 3;
    return true;
  }

  // Tables of the engine's own are not part of the site.
  static std::string name(const Token& token) {
    const std::string lower = lowerCase(token.text);
    if (lower.starts_with("sqlite_") || lower.starts_with("pragma_") || lower.empty()) {
      throw statementError("Invalid object name '" + token.text + "'.");
    }
    return quotedName(token.text);
  }

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  std::string sql_;
};

}  // namespace

Batch readBatch(std::string_view sql) {
  return Reader(sql).read();
}

}  // namespace pelorin::site
