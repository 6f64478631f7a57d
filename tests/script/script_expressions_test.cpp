#include <cmath>

#include "script_fixture.h"

namespace tavimor {
namespace {

struct Expression {
  const char* text;
  double expected;
};

void PrintTo(const Expression& expression, std::ostream* out) { *out << expression.text; }

class ScriptExpression : public ScriptTest, public ::testing::WithParamInterface<Expression> {};

TEST_P(ScriptExpression, HasTheValueComputedHere) {
  host.ExecuteStatement("x = 0.7");
  host.ExecuteStatement("y = -3");
  EXPECT_EQ(value(GetParam().text), GetParam().expected) << GetParam().text;
}

constexpr double x = 0.7, y = -3.0;

INSTANTIATE_TEST_SUITE_P(Numbers, ScriptExpression,
                         ::testing::Values(Expression{"1", 1.0}, Expression{"1.5", 1.5}, Expression{".5", 0.5},
                                           Expression{"5.", 5.0}, Expression{"1E5", 1e5}, Expression{"1e-5", 1e-5},
                                           Expression{"2.25E+05", 2.25e5}, Expression{"0.1", 0.1},
                                           Expression{"1E-400", 0.0}, Expression{"1E308", 1e308}));

INSTANTIATE_TEST_SUITE_P(Operators, ScriptExpression,
                         ::testing::Values(Expression{"x+y", x + y}, Expression{"x-y", x - y}, Expression{"x*y", x* y},
                                           Expression{"x/y", x / y}, Expression{"x^3", std::pow(x, 3.0)},
                                           Expression{"x - y - 1", x - y - 1.0}, Expression{"x / y / 7", x / y / 7.0},
                                           Expression{"1 + x * y", 1.0 + x* y},
                                           Expression{"(1 + x) * y", (1.0 + x) * y}, Expression{"((x))", x},
                                           Expression{"x*-y", x * -y}, Expression{"x--y", x - -y}, Expression{"+x", x},
                                           Expression{"-(-x)", x}));

INSTANTIATE_TEST_SUITE_P(Powers, ScriptExpression,
                         ::testing::Values(Expression{"2^3^2", std::pow(std::pow(2.0, 3.0), 2.0)},
                                           Expression{"-2^2", -std::pow(2.0, 2.0)},
                                           Expression{"(-2)^2", std::pow(-2.0, 2.0)}, Expression{"2^-1", 0.5},
                                           Expression{"2^-1*4", 2.0}, Expression{"(-8)^3", std::pow(-8.0, 3.0)},
                                           Expression{"-x^2*3", -std::pow(x, 2.0) * 3.0}, Expression{"0^0", 1.0},
                                           Expression{"2*3^2", 2.0 * std::pow(3.0, 2.0)}));

INSTANTIATE_TEST_SUITE_P(
    WholeNumbers, ScriptExpression,
    ::testing::Values(Expression{"7 \\ 2", std::trunc(7.0 / 2.0)}, Expression{"-7 \\ 2", std::trunc(-7.0 / 2.0)},
                      Expression{"7 Mod 3", std::fmod(7.0, 3.0)}, Expression{"-7 mod 3", std::fmod(-7.0, 3.0)},
                      Expression{"7 MOD -3", std::fmod(7.0, -3.0)}, Expression{"7.5 \\ 2.5", 8.0 / 2.0},
                      Expression{"10 \\ 2 * 3", std::trunc(10.0 / (2.0 * 3.0))},
                      Expression{"10 * 3 \\ 4", std::trunc(10.0 * 3.0 / 4.0)},
                      Expression{"10 Mod 7 \\ 2", std::fmod(10.0, std::trunc(7.0 / 2.0))},
                      Expression{"1 + 10 Mod 4", 1.0 + std::fmod(10.0, 4.0)},
                      Expression{"(-2147483648) \\ (-1)", 2147483648.0}, Expression{"(-2147483648) Mod (-1)", 0.0}));

INSTANTIATE_TEST_SUITE_P(
    Functions, ScriptExpression,
    ::testing::Values(Expression{"Abs(y)", std::fabs(y)}, Expression{"Atn(x)", std::atan(x)},
                      Expression{"Cos(x)", std::cos(x)}, Expression{"Exp(y)", std::exp(y)},
                      Expression{"Log(x)", std::log(x)}, Expression{"Sin(x)", std::sin(x)},
                      Expression{"Sqr(x)", std::sqrt(x)}, Expression{"Tan(x)", std::tan(x)}, Expression{"Sgn(y)", -1.0},
                      Expression{"Sgn(0)", 0.0}, Expression{"Sgn(x)", 1.0},
                      Expression{"SIN(Cos(tan(x)))", std::sin(std::cos(std::tan(x)))},
                      Expression{"Sin (x) ^ 2 + Cos(x)^2", std::pow(std::sin(x), 2.0) + std::pow(std::cos(x), 2.0)},
                      Expression{"-Sqr(4)", -2.0}));

INSTANTIATE_TEST_SUITE_P(Rounding, ScriptExpression,
                         ::testing::Values(Expression{"Int(2.7)", 2.0}, Expression{"Int(-2.1)", -3.0},
                                           Expression{"Fix(2.7)", 2.0}, Expression{"Fix(-2.7)", -2.0},
                                           Expression{"Round(0.5)", 0.0}, Expression{"Round(1.5)", 2.0},
                                           Expression{"Round(2.5)", 2.0}, Expression{"Round(-2.5)", -2.0},
                                           Expression{"Round(-3.5)", -4.0}, Expression{"Round(2.4)", 2.0},
                                           Expression{"Round(0.125, 2)", 0.12}, Expression{"Round(0.375, 2)", 0.38},
                                           Expression{"Round(1234.5, 0)", 1234.0},
                                           Expression{"Round(1E300, 22)", 1e300}));

}  // namespace
}  // namespace tavimor
