#include "script/ScriptHost.h"

#include <iterator>

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "script/expression_parser.h"
#include "script/identifier.h"
#include "script/intrinsics.h"
#include "script/parser_code.h"
#include "script/script_failure.h"

namespace tavimor {

namespace {

struct MethodName {
  const char* name;
  ExpressionParser::Method method;
};

struct FieldName {
  const char* name;
  double Class1::*field;
};

constexpr MethodName kMethods[] = {
    {"Asin", &Class1::Asin}, {"Acos", &Class1::Acos},   {"Sinh", &Class1::Sinh},   {"Cosh", &Class1::Cosh},
    {"Tanh", &Class1::Tanh}, {"Asinh", &Class1::Asinh}, {"Acosh", &Class1::Acosh}, {"Atanh", &Class1::Atanh},
};

constexpr FieldName kFields[] = {{"pi", &Class1::pi}, {"halfpi", &Class1::halfpi}, {"e", &Class1::e}};

Symbol function(std::string code) { return {Symbol::Kind::Function, std::move(code), {}}; }

Symbol value(std::string code, double& target) {
  return {Symbol::Kind::Value, std::move(code), [&target](double assigned) { target = assigned; }};
}

Symbol wholeNumber(std::string code, Long& target) {
  return {Symbol::Kind::Value, std::move(code), [&target](double assigned) { target = toLong(assigned); }};
}

}  // namespace

ScriptHost::ScriptHost() : parser_(std::make_unique<ExpressionParser>()) {
  for (const Intrinsic& intrinsic : intrinsics()) names_.define(intrinsic.name, function(lowerCase(intrinsic.name)));
  names_.define("Round", function("round"));
}

ScriptHost::~ScriptHost() = default;

void ScriptHost::AddObject(std::string_view name, Class1& object, AddMembers addMembers) {
  const auto publish = [&](const char* member, const Symbol& symbol) {
    names_.define(std::string(name) + "." + member, symbol);
    if (addMembers == AddMembers::Yes) names_.define(member, symbol);
  };
  names_.define(name, {Symbol::Kind::Object, {}, {}});
  for (const auto& [member, method] : kMethods) publish(member, function(parser_->addMethod(object, method)));
  for (const auto& [member, field] : kFields) publish(member, value(parser_->addValue(object.*field), object.*field));
  publish("ierr", wholeNumber(parser_->addWholeNumber(object.ierr), object.ierr));
}

void ScriptHost::ExecuteStatement(std::string_view statement) {
  try {
    run(statement);
    return;
  } catch (const ScriptFailure& failure) {
    error_.Description = failure.what();
  } catch (const RunTimeError& error) {
    error_.Description = error.what();
  }
  if (onError_) onError_();
  throw RunTimeError(ErrorNumber::ScriptReported);
}

void ScriptHost::run(std::string_view statement) {
  const std::size_t sign = statement.find('=');
  if (sign == statement.npos) throw ScriptFailure("A statement has the form name=expression");
  const std::string_view name = trimmed(statement.substr(0, sign));
  const Symbol* known = names_.assignable(name);
  const double assigned = valueOf(statement.substr(sign + 1));
  if (known != nullptr) return known->assign(assigned);
  double& variable = variables_.emplace_back(assigned);
  names_.define(name, value(parser_->addValue(variable), variable));
}

double ScriptHost::valueOf(std::string_view expression) {
  const ParserCode code(expression, names_);
  try {
    return parser_->evaluate(code.text());
  } catch (const mu::ParserError& error) {
    throw code.failure(error);
  }
}

}  // namespace tavimor
