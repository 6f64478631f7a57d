#include "script/ScriptHost.h"

#include <cmath>

#include "runtime/number_text.h"
#include "script_fixture.h"

namespace tavimor {
namespace {

TEST_F(ScriptTest, TheSetUpStatementsStoreIntoTheInstance) {
  EXPECT_EQ(sh.halfpi, std::atan(1.0) * 2.0);
  EXPECT_EQ(sh.pi, std::atan(1.0) * 4.0);
  EXPECT_EQ(sh.e, std::exp(1.0));
}

TEST_F(ScriptTest, AVariableIsAssignedAndReadAgain) {
  host.ExecuteStatement("x=1.5");
  EXPECT_EQ(value("x"), 1.5);
}

TEST_F(ScriptTest, EveryNumberTextIsReadBackAsTheSameValue) {
  for (const double x : {0.0, 1.5, -2.25e-05, 1e15, -1e300, 4.94065645841247e-324, 0.1, 123456789012345.0}) {
    host.ExecuteStatement("temp=" + numberText(x));
    EXPECT_EQ(numberText(value("temp")), numberText(x));
  }
}

TEST_F(ScriptTest, ALaterAssignmentOverwritesTheEarlierOne) {
  host.ExecuteStatement("x=1");
  host.ExecuteStatement("x=2");
  EXPECT_EQ(value("x"), 2.0);
}

TEST_F(ScriptTest, AVariableMayUseItsOwnValue) {
  host.ExecuteStatement("n=1");
  host.ExecuteStatement("n = n + n + n");
  EXPECT_EQ(value("n"), 3.0);
}

TEST_F(ScriptTest, BlanksAroundTheNameAndTheSignDoNotMatter) {
  host.ExecuteStatement("  \tx\t =  7 ");
  EXPECT_EQ(value("x"), 7.0);
}

TEST_F(ScriptTest, AVariableCalledPiReplacesTheFieldOnly) {
  host.ExecuteStatement("pi=3");
  EXPECT_EQ(sh.pi, 3.0);
  EXPECT_EQ(sh.halfpi, std::atan(1.0) * 2.0);
}

TEST_F(ScriptTest, AVariableCalledHalfpiChangesAsinAndAcos) {
  host.ExecuteStatement("halfpi=10");
  EXPECT_EQ(value("Asin(1)"), 10.0);
  EXPECT_EQ(value("Acos(-1)"), 20.0);
}

TEST_F(ScriptTest, TheMembersAreReachedWithAndWithoutThePrefix) {
  EXPECT_EQ(value("Asin(0.5)"), sh.Asin(0.5));
  EXPECT_EQ(value("sh.Asin(0.5)"), sh.Asin(0.5));
  EXPECT_EQ(value("SH.ASIN(0.5)"), sh.Asin(0.5));
  EXPECT_EQ(value("sh.halfpi"), sh.halfpi);
  host.ExecuteStatement("sh.e = 2");
  EXPECT_EQ(sh.e, 2.0);
}

TEST_F(ScriptTest, EveryFunctionOfTheInstanceIsPublished) {
  EXPECT_EQ(value("Acos(.5)"), sh.Acos(0.5));
  EXPECT_EQ(value("Sinh(.5)"), sh.Sinh(0.5));
  EXPECT_EQ(value("Cosh(.5)"), sh.Cosh(0.5));
  EXPECT_EQ(value("Tanh(.5)"), sh.Tanh(0.5));
  EXPECT_EQ(value("Asinh(.5)"), sh.Asinh(0.5));
  EXPECT_EQ(value("Acosh(1.5)"), sh.Acosh(1.5));
  EXPECT_EQ(value("Atanh(.5)"), sh.Atanh(0.5));
}

TEST_F(ScriptTest, AFailingFunctionOfTheInstanceIsAnOrdinaryZero) {
  EXPECT_EQ(value("1 + Asin(2)"), 1.0);
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(windowIerr, static_cast<Long>(ErrorNumber::InvalidCall));
}

TEST_F(ScriptTest, IerrIsReadWhenItsTurnComes) {
  EXPECT_EQ(value("ierr"), 0.0);
  EXPECT_EQ(value("Atanh(1) + ierr"), static_cast<double>(ErrorNumber::DivisionByZero));
}

TEST_F(ScriptTest, IerrTakesWholeNumbersRoundedHalvesToEven) {
  host.ExecuteStatement("ierr = 2.5");
  EXPECT_EQ(sh.ierr, 2);
  EXPECT_EQ(errorOf("ierr = 1E10"), "Overflow");
  EXPECT_EQ(sh.ierr, 2);
}

TEST(ScriptHostAlone, PublishesTheMembersUnderThePrefixOnlyWhenToldSo) {
  Long windowIerr = 0;
  Class1 sh(windowIerr);
  ScriptHost host;
  host.AddObject("sh", sh, AddMembers::No);
  host.ExecuteStatement("pi = 3");
  EXPECT_EQ(sh.pi, 0.0);
  host.ExecuteStatement("sh.pi = 4");
  EXPECT_EQ(sh.pi, 4.0);
  EXPECT_THROW(host.ExecuteStatement("x = Asin(0)"), RunTimeError);
}

TEST(ScriptHostAlone, NeedsNoErrorHandler) {
  ScriptHost host;
  EXPECT_THROW(host.ExecuteStatement("x ="), RunTimeError);
  EXPECT_FALSE(host.Error().Description.empty());
}

TEST_F(ScriptTest, ManyVariablesKeepTheirValues) {
  for (int n = 0; n < 500; ++n) host.ExecuteStatement("var" + std::to_string(n) + "=" + std::to_string(n));
  for (int n = 0; n < 500; ++n) EXPECT_EQ(value("var" + std::to_string(n)), n);
}

}  // namespace
}  // namespace tavimor
