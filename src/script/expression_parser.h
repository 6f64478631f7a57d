#pragma once

#include <muParser.h>

#include <deque>
#include <string>

#include "script/Class1.h"

namespace tavimor {

/// muParser with the operators and functions of the script language and none of its own.
///
/// From the tightest: ^   - + (signs)   * /   \   %   + -      all from left to right; % stands for Mod.
/// \ and % work on whole numbers: both operands are rounded to a Long, halves to even.
///
/// Errors: mu::ParserError for what is no expression; ScriptFailure for a function without a value at its argument;
///         RunTimeError for an operator: DivisionByZero, InvalidCall (a root of a negative number, 0 to a negative
///         power), Overflow.
class ExpressionParser final : public mu::ParserBase {
 public:
  using Method = double (Class1::*)(double);

  ExpressionParser();

  /// Makes a value, a whole number or a method known; the result is the code that stands for it in an expression.
  std::string addValue(double& value);
  std::string addWholeNumber(Long& value);
  std::string addMethod(Class1& object, Method method);

  double evaluate(const std::string& code);

 private:
  struct BoundMethod {
    Class1& object;
    Method method;
  };

  void InitCharSets() override;
  void InitFun() override;
  void InitConst() override {}
  void InitOprt() override;

  std::string newCode();

  std::deque<BoundMethod> methods_;
  int codes_ = 0;
};

}  // namespace tavimor
