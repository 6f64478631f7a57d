#include "engine/solver.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace tavimor {
namespace {

Gram matrix(std::initializer_list<std::initializer_list<double>> rows) {
  Gram gram(static_cast<Long>(rows.size()) - 1);
  Long r = 0;
  for (const auto& row : rows) {
    Long column = 0;
    for (const double element : row) gram(r, column++) = element;
    ++r;
  }
  return gram;
}

Table4 rightHandSide(std::initializer_list<double> elements) {
  Table4 table;
  table.redim({static_cast<Long>(elements.size()) - 1, 0, 0, 0});
  Long j = 0;
  for (const double element : elements) table(j++, 0, 0, 0) = element;
  return table;
}

TEST(Solver, SolvesASystemOfWholeNumbersExactly) {
  Gram gram = matrix({{4, 2, 0}, {2, 3, 1}, {0, 1, 2}});
  Table4 y = rightHandSide({8, 11, 8});  // for y = 1, 2, 3
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(y(0, 0, 0, 0), 1.0);
  EXPECT_EQ(y(1, 0, 0, 0), 2.0);
  EXPECT_EQ(y(2, 0, 0, 0), 3.0);
}

TEST(Solver, SolvesEveryLineAlongItsAxis) {
  for (Long k = 0; k < kMaxVariables; ++k) {
    PerVariable<Long> last = {2, 2, 2, 2};
    last[k] = 1;
    Table4 y;
    y.redim(last);
    for (std::size_t n = 0; n < y.size(); ++n) y.data()[n] = static_cast<double>(n);
    const Table4 given = y;
    Gram gram = matrix({{2, 1}, {1, 1}});  // its inverse is 1, -1; -1, 2
    ASSERT_EQ(solveAlong(k, gram, y), Solution::Found);
    const std::size_t next = y.stride(k);
    for (std::size_t n = 0; n < y.size(); ++n) {
      const bool isUpper = n / next % 2 == 0;
      const double c0 = given.data()[isUpper ? n : n - next], c1 = given.data()[isUpper ? n + next : n];
      EXPECT_EQ(y.data()[n], isUpper ? c0 - c1 : 2 * c1 - c0) << "axis " << k << ", element " << n;
    }
  }
}

TEST(Solver, TheLargestElementOfAColumnBecomesThePivotRow) {
  Gram gram = matrix({{1, 5}, {-2, 4}});
  Table4 y = rightHandSide({6, 2});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(gram(0, 0), -2.0);
  EXPECT_EQ(gram(0, 1), 4.0);
  EXPECT_EQ(gram(1, 1), 7.0);
  EXPECT_EQ(y(0, 0, 0, 0), 1.0);
  EXPECT_EQ(y(1, 0, 0, 0), 1.0);
}

TEST(Solver, OnATieTheUpperRowStaysThePivot) {
  Gram gram = matrix({{3, 1}, {-3, 4}});
  Table4 y = rightHandSide({4, 1});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(gram(0, 0), 3.0);
  EXPECT_EQ(gram(0, 1), 1.0);
}

TEST(Solver, OfTwoLargestRowsTheFirstOneIsExchanged) {
  Gram gram = matrix({{1, 0, 0}, {4, 1, 0}, {-4, 0, 1}});
  Table4 y = rightHandSide({1, 5, -3});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(gram(0, 0), 4.0);
  EXPECT_EQ(gram(0, 1), 1.0);
}

TEST(Solver, AnExchangeTakesTheColumnsLeftOfThePivotAlong) {
  Gram gram = matrix({{49, 0, 0}, {1, 0, 1}, {0, 2, 0}});
  const double remainder = 1 - (1.0 / 49) * 49;  // below the diagonal the elimination leaves what rounding leaves
  ASSERT_NE(remainder, 0.0);
  Table4 y = rightHandSide({49, 2, 2});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(gram(1, 0), 0.0);
  EXPECT_EQ(gram(2, 0), remainder);
  EXPECT_EQ(gram(1, 1), 2.0);
  EXPECT_EQ(y(1, 0, 0, 0), 1.0);
}

TEST(Solver, AZeroColumnIsSkippedAndLeavesTheSystemSingular) {
  Gram gram = matrix({{2, 0, 0}, {0, 0, 0}, {0, 0, 4}});
  Table4 y = rightHandSide({2, 5, 8});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Singular);
  EXPECT_EQ(y(2, 0, 0, 0), 2.0);  // the row below the zero was substituted already
  EXPECT_EQ(y(0, 0, 0, 0), 2.0);  // the row above it not
}

TEST(Solver, TheColumnsBehindAZeroColumnAreEliminatedAllTheSame) {
  Gram gram = matrix({{0, 0, 0}, {0, 1, 3}, {0, 2, 4}});
  Table4 y = rightHandSide({0, 4, 6});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Singular);
  EXPECT_EQ(gram(1, 1), 2.0);
  EXPECT_EQ(gram(2, 2), 1.0);
  EXPECT_EQ(y(1, 0, 0, 0), 1.0);
  EXPECT_EQ(y(2, 0, 0, 0), 1.0);
}

TEST(Solver, OnlyAnExactZeroIsSingular) {
  Gram gram = matrix({{1, 1}, {1, 1 + 1e-15}});
  Table4 y = rightHandSide({2, 2 + 1e-15});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  Gram exact = matrix({{1, 1}, {1, 1}});
  EXPECT_EQ(solveAlong(0, exact, y), Solution::Singular);
}

TEST(Solver, DegreeZeroDividesByTheOneElement) {
  Gram gram = matrix({{4}});
  Table4 y = rightHandSide({10});
  EXPECT_EQ(solveAlong(0, gram, y), Solution::Found);
  EXPECT_EQ(y(0, 0, 0, 0), 2.5);
}

}  // namespace
}  // namespace tavimor
