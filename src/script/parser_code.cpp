#include "script/parser_code.h"

#include <algorithm>

#include "script/identifier.h"
#include "script/script_failure.h"

namespace tavimor {

namespace {

bool isNext(std::string_view symbol, std::size_t n, const std::vector<Token>& tokens) {
  return n + 1 < tokens.size() && tokens[n + 1].text == symbol;
}

}  // namespace

ParserCode::ParserCode(std::string_view expression, const ScriptNames& names) {
  const std::vector<Token> all = tokens(expression);
  for (std::size_t n = 0; n < all.size(); ++n) {
    pieces_.push_back({all[n], codeOf(n, all, names), text_.size()});
    text_ += pieces_.back().code;
    if (!isNext("(", n, all)) text_ += " ";  // muParser wants a function's parenthesis right behind it
  }
}

std::string ParserCode::codeOf(std::size_t n, const std::vector<Token>& tokens, const ScriptNames& names) const {
  const std::string_view text = tokens[n].text;
  if (tokens[n].kind != TokenKind::Name) return std::string(text);
  if (lowerCase(text) == "mod") return "%";
  if (names.find(text) == nullptr && isIdentifier(text) && isNext("(", n, tokens))
    throw ScriptFailure("There is no function '" + std::string(text) + "'");
  const Symbol& symbol = names.symbolInExpression(text);
  if (symbol.kind == Symbol::Kind::Function && !isNext("(", n, tokens))
    throw ScriptFailure("The function '" + std::string(text) + "' needs its argument in parentheses");
  return symbol.code;
}

const ParserCode::Piece& ParserCode::pieceAt(int offset) const {
  const auto behind = std::find_if(pieces_.begin() + 1, pieces_.end(),
                                   [&](const Piece& piece) { return static_cast<int>(piece.offset) > offset; });
  return *(behind - 1);
}

ScriptFailure ParserCode::failure(const mu::ParserError& error) const {
  if (pieces_.empty()) return ScriptFailure("An expression is missing behind '='");
  switch (error.GetCode()) {
    case mu::ecUNEXPECTED_EOF: return ScriptFailure("The statement ends too early");
    case mu::ecEXPRESSION_TOO_LONG: return ScriptFailure("The expression is too long");
    case mu::ecMISSING_PARENS: return ScriptFailure("A ')' is missing");
    case mu::ecTOO_FEW_PARAMS:
    case mu::ecTOO_MANY_PARAMS: {
      const auto function = std::find_if(pieces_.begin(), pieces_.end(),
                                         [&](const Piece& piece) { return piece.code == error.GetToken(); });
      const std::string name(function == pieces_.end() ? pieceAt(error.GetPos()).token.text : function->token.text);
      return ScriptFailure("Wrong number of arguments: '" + name + "'");
    }
    default: {
      const std::string_view text = pieceAt(error.GetPos()).token.text;
      return ScriptFailure("Syntax error at '" + std::string(text) + "'");
    }
  }
}

}  // namespace tavimor
