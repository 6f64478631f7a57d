#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "script/Class1.h"
#include "script/script_names.h"

namespace tavimor {

class ExpressionParser;

/// The error of the last statement that failed; Description says what is wrong, and that alone.
struct ScriptError {
  std::string Description;
};

enum class AddMembers { No, Yes };

/// The engine that runs single statements of a script language, each an assignment: "name=expression".
///
/// Names        a letter from A to Z, then letters, digits and underscores, at most 255 characters, in any case, none
///              of the language's reserved words. A variable comes into being with its first assignment.
/// Expressions  + - * / ^ \ Mod and parentheses; numbers with a decimal point and an exponent, "2.25E-05"; the
///              functions Abs Atn Cos Exp Fix Int Log Round Sgn Sin Sqr Tan; the members of the published objects.
///              Powers go from left to right and bind tighter than a sign: -2^2 is -4. Nothing else is predefined.
/// Errors       a statement that cannot be read or run changes nothing but Class1's ierr. It sets Error, then calls the
///              error handler, then raises the run-time error ScriptReported. Division by zero, a function without a
///              value at its argument and a value too large for a double are errors too.
class ScriptHost {
 public:
  ScriptHost();
  ~ScriptHost();
  ScriptHost(const ScriptHost&) = delete;
  ScriptHost& operator=(const ScriptHost&) = delete;

  /// Publishes the object's functions and fields, as "name.member" and, with AddMembers::Yes, as "member" too. A field
  /// is the object's own: what a statement assigns is stored into it. The object outlives the engine.
  void AddObject(std::string_view name, Class1& object, AddMembers addMembers);

  void ExecuteStatement(std::string_view statement);

  const ScriptError& Error() const { return error_; }

  void setErrorHandler(std::function<void()> handler) { onError_ = std::move(handler); }

 private:
  void run(std::string_view statement);
  double valueOf(std::string_view expression);

  ScriptNames names_;
  std::deque<double> variables_;  // a deque, since the parser keeps their addresses
  std::unique_ptr<ExpressionParser> parser_;
  ScriptError error_;
  std::function<void()> onError_;
};

}  // namespace tavimor
