// The words of a statement as SQL Server divides them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pelorin::site {

struct Token {
  enum class Kind {
    Word,      // a bare word: keyword or name
    Name,      // in brackets or double quotes; `text` is without them
    Text,      // in single quotes, with or without N; `text` is the content
    Number,    // unsigned
    Variable,  // @name
    Symbol,    // operator or punctuation
    Broken,    // no token; `text` is the error's description
    End
  };
  Kind kind = Kind::End;
  std::string text;
  bool isSymbol(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
};

// Blanks and comments are left out. The last token is End, or Broken where the division failed:
// whoever reads the tokens in order thus meets the first error first.
std::vector<Token> tokenize(std::string_view sql);

}  // namespace pelorin::site
