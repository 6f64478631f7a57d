#include "script/expression_parser.h"

#include <cmath>

#include "runtime/checked_arithmetic.h"
#include "runtime/numeral.h"
#include "runtime/run_time_error.h"
#include "script/identifier.h"
#include "script/intrinsics.h"
#include "script/script_failure.h"

namespace tavimor {

namespace {

enum Precedence { kSum = 1, kModulus, kWholeQuotient, kProduct, kSign, kPower };

int readNumber(const char* text, int* position, double* value) {
  if (beginsIdentifier(*text)) return 0;  // scanNumeral would take INF and NAN
  const Numeral numeral = scanNumeral(text, text + std::char_traits<char>::length(text));
  *value = numeral.value;
  *position += static_cast<int>(numeral.end - text);
  return numeral.end == text ? 0 : 1;
}

double power(double base, double exponent) {
  if (base == 0.0 && exponent < 0.0) throw RunTimeError(ErrorNumber::InvalidCall);
  const double value = std::pow(base, exponent);
  if (std::isnan(value)) throw RunTimeError(ErrorNumber::InvalidCall);
  return inRange(value);
}

Long wholeDivisor(double b) {
  const Long divisor = toLong(b);
  if (divisor == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return divisor;
}

double wholeQuotient(double a, double b) {
  const std::int64_t wide = toLong(a);  // the lowest Long over -1 is no Long
  const std::int64_t whole = wide / wholeDivisor(b);
  return static_cast<double>(whole);
}

double modulus(double a, double b) { return static_cast<double>(std::int64_t{toLong(a)} % wholeDivisor(b)); }

template <class Computation>
double namingTheFunction(const char* name, Computation computation) {
  try {
    return inRange(computation());
  } catch (const RunTimeError& error) {
    throw ScriptFailure(std::string(error.what()) + ": '" + name + "'");
  }
}

double callIntrinsic(void* data, double x) {
  const auto* intrinsic = static_cast<const Intrinsic*>(data);
  return namingTheFunction(intrinsic->name, [&] { return intrinsic->compute(x); });
}

double callRound(const double* arguments, int count) {
  if (count > 2) throw ScriptFailure("Wrong number of arguments: 'Round'");
  return namingTheFunction("Round",
                           [&] { return roundToDecimals(arguments[0], count == 2 ? toLong(arguments[1]) : 0); });
}

double readWholeNumber(void* data) { return *static_cast<const Long*>(data); }

}  // namespace

ExpressionParser::ExpressionParser() {
  InitCharSets();
  InitFun();
  InitOprt();
  AddValIdent(readNumber);
}

void ExpressionParser::InitCharSets() {
  DefineNameChars("0123456789_abcdefghijklmnopqrstuvwxyz");
  DefineOprtChars("+-*/\\%^");
  DefineInfixOprtChars("+-");
}

void ExpressionParser::InitFun() {
  for (const Intrinsic& intrinsic : intrinsics())
    DefineFunUserData(lowerCase(intrinsic.name), callIntrinsic, const_cast<Intrinsic*>(&intrinsic));
  DefineFun("round", callRound);
}

void ExpressionParser::InitOprt() {
  EnableBuiltInOprt(false);
  DefineOprt(
      "+", [](double a, double b) { return inRange(a + b); }, kSum);
  DefineOprt(
      "-", [](double a, double b) { return inRange(a - b); }, kSum);
  DefineOprt("%", modulus, kModulus);
  DefineOprt("\\", wholeQuotient, kWholeQuotient);
  DefineOprt(
      "*", [](double a, double b) { return inRange(a * b); }, kProduct);
  DefineOprt(
      "/", [](double a, double b) { return inRange(quotient(a, b)); }, kProduct);
  DefineOprt("^", power, kPower);
  DefineInfixOprt(
      "-", [](double a) { return -a; }, kSign);
  DefineInfixOprt(
      "+", [](double a) { return a; }, kSign);
}

std::string ExpressionParser::newCode() { return "v" + std::to_string(codes_++); }

std::string ExpressionParser::addValue(double& value) {
  std::string code = newCode();
  DefineVar(code, &value);
  return code;
}

std::string ExpressionParser::addWholeNumber(Long& value) {
  std::string code = newCode();
  DefineFunUserData(code, readWholeNumber, &value, false);
  return code + "()";
}

std::string ExpressionParser::addMethod(Class1& object, Method method) {
  const auto call = [](void* data, double x) {
    const auto* bound = static_cast<const BoundMethod*>(data);
    return (bound->object.*bound->method)(x);
  };
  std::string code = newCode();
  methods_.push_back({object, method});
  DefineFunUserData(code, static_cast<mu::fun_userdata_type1>(call), &methods_.back(), false);
  return code;
}

double ExpressionParser::evaluate(const std::string& code) {
  SetExpr(code);
  const double value = Eval();
  if (GetNumResults() != 1) throw mu::ParserError(mu::ecUNEXPECTED_ARG_SEP, static_cast<int>(code.find(',')), ",");
  return value;
}

}  // namespace tavimor
