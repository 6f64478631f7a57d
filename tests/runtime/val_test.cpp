#include "runtime/val.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "runtime/run_time_error.h"

namespace tavimor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The "$" marks where the numeral ends and is not part of the text. What stands behind it must not count: neither as
// it is, nor cut off.
void expectVal(std::string marked, double value) {
  const std::size_t mark = marked.find('$');
  ASSERT_NE(mark, std::string::npos) << marked;
  marked.erase(mark, 1);
  EXPECT_EQ(Val(marked), value) << marked;
  EXPECT_EQ(Val(marked.substr(0, mark)), value) << marked;
}

TEST(Val, TakesTheLongestLeadingNumeral) {
  expectVal("1.5$abc", 1.5);
  expectVal("12$ 34", 12);
  expectVal("1.5$.5", 1.5);
  expectVal("-2.25$-1", -2.25);
  expectVal("+4$", 4);
  expectVal("1E3$", 1000);
  expectVal("1e+3$x", 1000);
  expectVal("1E-3$.5", 0.001);
}

TEST(Val, AnExponentNeedsADigit) {
  expectVal("1$E", 1);
  expectVal("1$E+", 1);
  expectVal("2$e-x", 2);
  expectVal("1$D2", 1);
}

TEST(Val, OnlyAPointIsADecimalPoint) {
  expectVal("1$,5", 1);
  expectVal(".5$", 0.5);
  expectVal("5.$", 5);
  expectVal("-.5$,", -0.5);
}

TEST(Val, BlanksBeforeTheNumeralAreSkipped) {
  expectVal("   7$ ", 7);
  expectVal("\t 7$", 7);
  expectVal(" \r\n7$", 7);
}

TEST(Val, IsZeroWithoutANumeral) {
  for (const char* text :
       {"", " ", "$abc", "$*", "$-", "$+", "$.", "$-.", "$--5", "$- 5", "$E5", "$.E5", "$,5", "$inf"})
    if (*text == '$')
      expectVal(text, 0);
    else
      EXPECT_EQ(Val(text), 0) << text;
}

TEST(Val, ReadsTheWordsForWhatIsNoNumber) {
  expectVal("INF$", kInfinity);
  expectVal("-INF$ x", -kInfinity);
  expectVal("$INFINITE", 0);
  expectVal("$NANA", 0);
  expectVal("$INF_1", 0);
  EXPECT_TRUE(std::isnan(Val("NAN")));
  EXPECT_TRUE(std::isnan(Val("-NAN,")));
}

TEST(Val, KeepsTheSignOfZero) { EXPECT_TRUE(std::signbit(Val("-0"))); }

TEST(Val, ANumberThatIsTooLargeIsNoneAndOneThatIsTooSmallIsZero) {
  expectVal("$1E400", 0);
  expectVal("$-1E400", 0);
  expectVal("$1E99999999999999999999", 0);
  expectVal("1E-400$", 0);
  expectVal("1E-99999999999999999999$", 0);
  expectVal("0E99999999999999999999$", 0);
}

TEST(ValLong, RoundsHalvesToEven) {
  EXPECT_EQ(ValLong("2.5"), 2);
  EXPECT_EQ(ValLong("3.5"), 4);
  EXPECT_EQ(ValLong("-2.5"), -2);
  EXPECT_EQ(ValLong("abc"), 0);
}

TEST(ValLong, OverflowsBeyondALong) {
  EXPECT_EQ(ValLong("2147483647"), 2147483647);
  EXPECT_THROW(ValLong("2147483648"), RunTimeError);
  EXPECT_THROW(ValLong("NAN"), RunTimeError);
}

TEST(IsNumeric, AcceptsOneNumeralAndBlanksAroundIt) {
  for (const char* text : {"0", "-1", "+1.5", ".5", "5.", "1E5", "1e-5", "  2  ", "\t2\r\n", "1.79769313486232E+308"})
    EXPECT_TRUE(IsNumeric(text)) << text;
}

TEST(IsNumeric, RefusesEverythingElse) {
  for (const char* text :
       {"", " ", "1,5", "1.5abc", "abc", "1 2", "--1", ".", "-", "1E", "INF", "-INF", "NAN", "*", "1E400", "-1E400"})
    EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(Val, TakesATextThatPointsNowhere) {
  EXPECT_EQ(Val(std::string_view()), 0);
  EXPECT_FALSE(IsNumeric(std::string_view()));
}

}  // namespace
}  // namespace tavimor
