#include "script_fixture.h"

namespace tavimor {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class FreeName : public ScriptTest, public ::testing::WithParamInterface<const char*> {};
class ReservedWord : public ScriptTest, public ::testing::WithParamInterface<const char*> {};
class NoName : public ScriptTest, public ::testing::WithParamInterface<const char*> {};
class FunctionName : public ScriptTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(FreeName, IsAVariableLikeAnyOther) {
  const std::string name = GetParam();
  EXPECT_THAT(errorOf("y = " + name), HasSubstr("'" + name + "'"));
  host.ExecuteStatement(name + "=0.25");
  EXPECT_EQ(value(name), 0.25);
}

// Names that the parser underneath, other languages or this engine's own code have a use for.
INSTANTIATE_TEST_SUITE_P(Names, FreeName,
                         ::testing::Values("x", "max", "min", "sum", "avg", "rint", "sign", "ln", "log2", "log10",
                                           "sqrt", "atan", "atan2", "asin2", "v0", "v1", "Temperature", "x_", "x_1",
                                           "a1b2", "inf", "nan", "step", "error", "default", "string", "rnd", "hex",
                                           "modulus", "e1", "E5"));

TEST_P(ReservedWord, IsRefusedInAnyCase) {
  std::string word = GetParam();
  EXPECT_THAT(errorOf(word + "=1"), StartsWith("'" + word + "' is a reserved word"));
  word[0] = static_cast<char>(word[0] - 'a' + 'A');
  EXPECT_THAT(errorOf(word + "=1"), StartsWith("'" + word + "' is a reserved word"));
}

INSTANTIATE_TEST_SUITE_P(Words, ReservedWord,
                         ::testing::Values("and", "dim", "do", "each", "else", "end", "exit", "false", "for",
                                           "function", "if", "in", "is", "let", "loop", "mod", "new", "next", "not",
                                           "nothing", "null", "on", "or", "rem", "select", "set", "sub", "then", "to",
                                           "true", "type", "until", "wend", "while", "with", "xor"));

TEST_P(NoName, IsRefusedWithTheRule) {
  const std::string name = GetParam();
  EXPECT_EQ(errorOf(name + "=1.5"), "'" + name +
                                        "' cannot name a variable: a name is a letter (A to Z) followed by letters, "
                                        "digits and underscores");
}

INSTANTIATE_TEST_SUITE_P(Names, NoName,
                         ::testing::Values("my var", "2x", "_x", "x-y", "", "x(1)", "größe", "x'", "[x]", "a.", ".a",
                                           "a.b.c", "5", "-x"));

TEST_P(FunctionName, CannotBeAssignedTo) {
  const std::string name = GetParam();
  EXPECT_THAT(errorOf(name + "=1"), StartsWith("'" + name + "' is a function and cannot be assigned to"));
}

INSTANTIATE_TEST_SUITE_P(Names, FunctionName,
                         ::testing::Values("Abs", "Atn", "Cos", "Exp", "Fix", "Int", "Log", "Round", "Sgn", "Sin",
                                           "Sqr", "Tan", "ABS", "tan", "Asin", "Acos", "Sinh", "Cosh", "Tanh", "Asinh",
                                           "Acosh", "Atanh", "sh.Asin"));

TEST_F(ScriptTest, AReservedWordHasNoValueEither) {
  EXPECT_THAT(errorOf("y=True"), StartsWith("'True' is a reserved word of the script language"));
}

TEST_F(ScriptTest, NamesThatDifferInCaseAreOneVariable) {
  host.ExecuteStatement("Speed=3");
  host.ExecuteStatement("sPEED=4");
  EXPECT_EQ(value("speed + SPEED"), 8.0);
}

TEST_F(ScriptTest, ANameHasUpTo255Characters) {
  const std::string longest(255, 'x');
  host.ExecuteStatement(longest + "=1.5");
  EXPECT_EQ(value(longest), 1.5);
  EXPECT_THAT(errorOf(longest + "x=1"), StartsWith("A name has at most 255 characters"));
}

TEST_F(ScriptTest, ALongNameIsShownShortened) {
  std::string name = "2";
  for (int n = 0; n < 300; ++n) name += "ä";
  const std::string error = errorOf(name + "=1");
  EXPECT_THAT(error, StartsWith("'2ää"));
  EXPECT_THAT(error, HasSubstr("ä...' cannot name a variable"));
  EXPECT_LT(error.size(), 200u);
}

TEST_F(ScriptTest, TheObjectItselfCannotBeAssignedTo) {
  EXPECT_THAT(errorOf("sh=1"), StartsWith("'sh' is an object and cannot be assigned to"));
}

TEST_F(ScriptTest, AMemberMustExist) {
  EXPECT_THAT(errorOf("sh.x=1"), StartsWith("'sh' has no member 'x'"));
  EXPECT_THAT(errorOf("y=sh.Foo(1)"), StartsWith("'sh' has no member 'Foo'"));
  EXPECT_THAT(errorOf("y.x=1"), StartsWith("'y' is not an object"));
}

}  // namespace
}  // namespace tavimor
