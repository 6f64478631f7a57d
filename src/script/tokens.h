#pragma once

#include <string_view>
#include <vector>

namespace tavimor {

enum class TokenKind { Name, Number, Symbol };

/// A piece of an expression; `text` points into it. A member's name, "sh.Asin", is one token.
struct Token {
  TokenKind kind;
  std::string_view text;
};

/// The expression in pieces. A symbol is one of + - * / \ ^ ( ) and the comma.
/// Errors: ScriptFailure for a character that is none of these, for a numeral too large for a double.
std::vector<Token> tokens(std::string_view expression);

}  // namespace tavimor
