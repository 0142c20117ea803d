#include "site/sql_tokens.h"

#include <algorithm>
#include <array>

namespace pelorin::site {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80U;
}
bool isWordPart(char c) {
  return isLetter(c) || isDigit(c) || c == '@' || c == '$' || c == '#';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Tokenizer {
 public:
  explicit Tokenizer(std::string_view sql) : sql_(sql) {}

  std::vector<Token> run() {
    std::vector<Token> tokens;
    do {
      tokens.push_back(next());
    } while (tokens.back().kind != Token::Kind::End && tokens.back().kind != Token::Kind::Broken);
    return tokens;
  }

 private:
  char peek(std::size_t ahead = 0) const {
    return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : '\0';
  }
  bool startsWith(std::string_view text) const { return sql_.substr(at_).starts_with(text); }

  Token next() {
    while (skipBlanksAndComments()) {
    }
    if (broken_) return {Token::Kind::Broken, "Missing end comment mark '*/'."};
    if (at_ >= sql_.size()) return {Token::Kind::End, ""};
    const char c = peek();
    if ((c == 'N' || c == 'n') && peek(1) == '\'') {
      ++at_;
      return quoted('\'', Token::Kind::Text);
    }
    if (c == '\'') return quoted('\'', Token::Kind::Text);
    if (c == '"') return quoted('"', Token::Kind::Name);
    if (c == '[') return quoted(']', Token::Kind::Name);
    if (isDigit(c) || (c == '.' && isDigit(peek(1)))) return number();
    if (isLetter(c)) return word(Token::Kind::Word);
    if (c == '@') return word(Token::Kind::Variable);
    return symbol();
  }

  // True when something was skipped.
  bool skipBlanksAndComments() {
    const std::size_t before = at_;
    while (at_ < sql_.size() && isBlank(sql_[at_])) ++at_;
    if (startsWith("--")) at_ = std::min(sql_.find('\n', at_), sql_.size());
    if (startsWith("/*")) skipBlockComment();
    return at_ != before && !broken_;
  }

  // Block comments nest on SQL Server.
  void skipBlockComment() {
    int depth = 0;
    do {
      if (at_ >= sql_.size()) {
        broken_ = true;
        return;
      }
      const bool opens = startsWith("/*");
      const bool closes = startsWith("*/");
      depth += opens ? 1 : (closes ? -1 : 0);
      at_ += opens || closes ? 2 : 1;
    } while (depth > 0);
  }

  // A doubled closing mark stands for itself.
  Token quoted(char close, Token::Kind kind) {
    const std::size_t start = ++at_;
    std::string text;
    while (at_ < sql_.size()) {
      if (sql_[at_] == close) {
        if (peek(1) != close) {
          ++at_;
          return {kind, text};
        }
        ++at_;
      }
      text.push_back(sql_[at_++]);
    }
    return {Token::Kind::Broken, "Unclosed quotation mark after the character string '" +
                                     std::string(sql_.substr(start)) + "'."};
  }

  void skipDigits() {
    while (isDigit(peek())) ++at_;
  }

  Token number() {
    const std::size_t start = at_;
    skipDigits();
    if (peek() == '.') {
      ++at_;
      skipDigits();
    }
    if (peek() == 'e' || peek() == 'E') {
      ++at_;
      if (peek() == '+' || peek() == '-') ++at_;
      skipDigits();
    }
    return {Token::Kind::Number, std::string(sql_.substr(start, at_ - start))};
  }

  Token word(Token::Kind kind) {
    const std::size_t start = at_++;
    while (at_ < sql_.size() && isWordPart(sql_[at_])) ++at_;
    return {kind, std::string(sql_.substr(start, at_ - start))};
  }

  Token symbol() {
    static constexpr std::array<std::string_view, 4> twoCharacters{"<>", "<=", ">=", "!="};
    for (const std::string_view two : twoCharacters) {
      if (startsWith(two)) {
        at_ += 2;
        return {Token::Kind::Symbol, std::string(two)};
      }
    }
    static constexpr std::string_view single = "=<>(),.*-+;";
    const char c = sql_[at_++];
    if (single.find(c) == std::string_view::npos) {
      const std::string near = c == '\0' ? "\\0" : std::string(1, c);
      return {Token::Kind::Broken, "Incorrect syntax near '" + near + "'."};
    }
    return {Token::Kind::Symbol, std::string(1, c)};
  }

  std::string_view sql_;
  std::size_t at_ = 0;
  bool broken_ = false;
};

}  // namespace

std::vector<Token> tokenize(std::string_view sql) {
  return Tokenizer(sql).run();
}

}  // namespace pelorin::site
