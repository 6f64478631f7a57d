#include <random>

#include "script_fixture.h"

namespace tavimor {
namespace {

using ::testing::ElementsAre;

struct FailingStatement {
  const char* name;
  const char* statement;
  const char* reason;
};

void PrintTo(const FailingStatement& failing, std::ostream* out) { *out << failing.statement; }

class ScriptErrors : public ScriptTest, public ::testing::WithParamInterface<FailingStatement> {};

TEST_P(ScriptErrors, SayWhatIsWrongAndNothingElse) {
  EXPECT_EQ(errorOf(GetParam().statement), GetParam().reason);
  EXPECT_THAT(told, ElementsAre(host.Error().Description));
  EXPECT_THROW(value("x"), RunTimeError) << "a failed statement assigns nothing";
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ScriptErrors,
    ::testing::Values(
        FailingStatement{"DivisionByZero", "x=1/0", "Division by zero"},
        FailingStatement{"WholeDivisionByZero", "x=1\\0.4", "Division by zero"},
        FailingStatement{"ModByZero", "x=1 Mod 0", "Division by zero"},
        FailingStatement{"WholeDivisionTooLarge", "x=3E9 \\ 2", "Overflow"},
        FailingStatement{"LogOfANegativeNumber", "x=Log(-1)", "Invalid procedure call or argument: 'Log'"},
        FailingStatement{"LogOfZero", "x=log(0)", "Invalid procedure call or argument: 'Log'"},
        FailingStatement{"RootOfANegativeNumber", "x=Sqr(-1)", "Invalid procedure call or argument: 'Sqr'"},
        FailingStatement{"RoundToTooManyDecimals", "x=Round(1, 23)", "Invalid procedure call or argument: 'Round'"},
        FailingStatement{"RoundToFewerThanNoDecimals", "x=Round(1, -1)", "Invalid procedure call or argument: 'Round'"},
        FailingStatement{"ExpTooLarge", "x=Exp(1000)", "Overflow: 'Exp'"},
        FailingStatement{"ProductTooLarge", "x=1E300*1E300", "Overflow"},
        FailingStatement{"SumTooLarge", "x=1.5E308+1.5E308", "Overflow"},
        FailingStatement{"DifferenceTooLarge", "x=-1.5E308-1.5E308", "Overflow"},
        FailingStatement{"QuotientTooLarge", "x=1E300/1E-300", "Overflow"},
        FailingStatement{"PowerTooLarge", "x=10^400", "Overflow"},
        FailingStatement{"NumberTooLarge", "x=2+1E400", "Overflow"},
        FailingStatement{"RootByAPower", "x=(-8)^0.5", "Invalid procedure call or argument"},
        FailingStatement{"ZeroToANegativePower", "x=0^(-1)", "Invalid procedure call or argument"},
        FailingStatement{"UnknownName", "x=1+foo*2", "Nothing is known of 'foo': no value has been assigned to it"},
        FailingStatement{"Infinity", "x=INF", "Nothing is known of 'INF': no value has been assigned to it"},
        FailingStatement{"UnknownFunction", "x=2*Foo(1)", "There is no function 'Foo'"},
        FailingStatement{"FunctionWithoutParentheses", "x=1+Sin",
                         "The function 'Sin' needs its argument in parentheses"},
        FailingStatement{"FunctionWithoutArgument", "x=Sin()", "Wrong number of arguments: 'Sin'"},
        FailingStatement{"FunctionWithTwoArguments", "x=Asin(1,2)", "Wrong number of arguments: 'Asin'"},
        FailingStatement{"RoundWithThreeArguments", "x=Round(1,2,3)", "Wrong number of arguments: 'Round'"},
        FailingStatement{"RoundWithoutArgument", "x=Round()", "Wrong number of arguments: 'Round'"},
        FailingStatement{"ObjectAsAValue", "x=sh", "'sh' is an object and has no value"},
        FailingStatement{"NoSign", "x", "A statement has the form name=expression"},
        FailingStatement{"NoStatement", "", "A statement has the form name=expression"},
        FailingStatement{"NoExpression", "x=", "An expression is missing behind '='"},
        FailingStatement{"BlankExpression", "x=  ", "An expression is missing behind '='"},
        FailingStatement{"TwoSigns", "x=1=1", "Syntax error at '='"},
        FailingStatement{"EndsWithAnOperator", "x=1+", "The statement ends too early"},
        FailingStatement{"EmptyParentheses", "x=()", "Syntax error at ')'"},
        FailingStatement{"OneParenthesisTooFew", "x=(1+2", "A ')' is missing"},
        FailingStatement{"OneParenthesisTooMany", "x=1+2)", "Syntax error at ')'"},
        FailingStatement{"TwoNumbers", "x=1 2", "Syntax error at '2'"},
        FailingStatement{"DecimalComma", "x=1,5", "Syntax error at ','"},
        FailingStatement{"CommaInParentheses", "x=(1,5)", "Syntax error at ')'"},
        FailingStatement{"TwoPoints", "x=1.2.3", "Syntax error at '.3'"},
        FailingStatement{"NameBehindANumber", "x=2pi", "Syntax error at 'pi'"},
        FailingStatement{"ValueAsAFunction", "x=pi(1)", "Syntax error at '('"},
        FailingStatement{"TwoOperators", "x=1*/2", "Syntax error at '/'"},
        FailingStatement{"LoneMod", "x=Mod 2", "Syntax error at 'Mod'"},
        FailingStatement{"StrangeCharacter", "x=ä$", "Syntax error at 'ä'"},
        FailingStatement{"CharacterBehindAStrangeName", "x=1 § 2", "Syntax error at '§'"}),
    [](const auto& test) { return test.param.name; });

TEST_F(ScriptTest, AnExpressionBeyondTheParsersLimitIsAnError) {
  std::string sum = "x=1";
  for (int n = 0; n < 10000; ++n) sum += "+1";
  EXPECT_EQ(errorOf(sum), "The expression is too long");
}

// errorOf fails the test on any other run-time error, and any other exception ends it.
TEST_F(ScriptTest, AnyTextRunsOrIsReported) {
  const std::vector<std::string> pieces = {"x",  "pi", "Sin", "sh.Asin", "sh", "ierr", "Mod", "Round", "1", "2.5",
                                           "1E", ".",  "(",   ")",       ",",  "+",    "-",   "*",     "/", "\\",
                                           "^",  "=",  " ",   "ä",       "if", "$",    "&",   "?",     ":", "\"a\""};
  std::mt19937 random(1);
  int failures = 0;
  for (int n = 0; n < 20000; ++n) {
    std::string statement = "x=";
    for (std::uint32_t length = random() % 8; length > 0; --length) statement += pieces[random() % pieces.size()];
    failures += errorOf(statement).empty() ? 0 : 1;
  }
  EXPECT_EQ(static_cast<int>(told.size()), failures);
  EXPECT_LT(failures, 20000);
}

TEST_F(ScriptTest, AFailingAssignmentKeepsTheOldValue) {
  host.ExecuteStatement("x=3");
  EXPECT_NE(errorOf("x=1/0"), "");
  EXPECT_EQ(value("x"), 3.0);
}

TEST_F(ScriptTest, TheEngineWorksOnAfterAnError) {
  EXPECT_NE(errorOf("y=(1"), "");
  host.ExecuteStatement("y=2");
  EXPECT_EQ(value("y"), 2.0);
}

TEST_F(ScriptTest, TheHandlerIsToldBeforeTheCaller) {
  std::vector<std::string> order;
  host.setErrorHandler([&] { order.emplace_back("handler"); });
  try {
    host.ExecuteStatement("2x=1");
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::ScriptReported);
    order.emplace_back("caller");
  }
  EXPECT_THAT(order, ElementsAre("handler", "caller"));
}

}  // namespace
}  // namespace tavimor
