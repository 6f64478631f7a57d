#pragma once

#include <string>
#include <vector>

#include "script/expression_parser.h"
#include "script/script_failure.h"
#include "script/script_names.h"
#include "script/tokens.h"

namespace tavimor {

/// An expression as the parser reads it, every name replaced by the code that stands for it. muParser's own names are
/// case-sensitive and end at 100 characters, and a user's name could be one that it gives a meaning to.
class ParserCode {
 public:
  /// Errors: ScriptFailure as of tokens and of ScriptNames, and for a function without parentheses.
  ParserCode(std::string_view expression, const ScriptNames& names);

  const std::string& text() const { return text_; }

  /// The parser's error in the words of this engine.
  ScriptFailure failure(const mu::ParserError& error) const;

 private:
  struct Piece {
    Token token;
    std::string code;
    std::size_t offset;  // in text_
  };

  std::string codeOf(std::size_t n, const std::vector<Token>& tokens, const ScriptNames& names) const;
  const Piece& pieceAt(int offset) const;

  std::vector<Piece> pieces_;
  std::string text_;
};

}  // namespace tavimor
