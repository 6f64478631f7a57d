#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tavimor {

/// What a name stands for: how an expression passes it to the parser (`code`) and how a statement assigns to it
/// (`assign`, empty for all but values).
struct Symbol {
  enum class Kind { Function, Value, Object };

  Kind kind;
  std::string code;
  std::function<void(double)> assign;
};

/// The names that a script can use, in any case. A member of a published object is entered as "object.member".
class ScriptNames {
 public:
  void define(std::string_view name, Symbol symbol);

  /// The symbol of a name, null if there is none.
  const Symbol* find(std::string_view name) const;

  /// Errors: ScriptFailure for a name that does not stand for a value or a function.
  const Symbol& symbolInExpression(std::string_view name) const;

  /// The symbol to assign to, null for a name that is still free.
  /// Errors: ScriptFailure for what is no name, for a reserved word, a function, an object or an unknown member.
  const Symbol* assignable(std::string_view name) const;

 private:
  [[noreturn]] void reportUnknownMember(std::string_view name) const;

  std::map<std::string, Symbol> symbols_;
};

}  // namespace tavimor
