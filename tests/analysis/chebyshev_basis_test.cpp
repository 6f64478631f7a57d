#include "analysis/chebyshev_basis.h"

#include <gtest/gtest.h>

#include "support/exact_fit.h"

namespace tavimor {
namespace {

std::vector<mpq_class> exactChebyshevs(const mpq_class& t, std::size_t terms) {
  std::vector<mpq_class> values{1, t};
  while (values.size() < terms) values.push_back(2 * t * values.back() - values[values.size() - 2]);
  return values;
}

TEST(ChebyshevProducts, OverAGridAreThoseOfExactArithmetic) {
  constexpr std::size_t count = 90, terms = 8;
  constexpr double stretch = 1.375, unit = stretch / 128;
  std::vector<mpq_class> exact(terms * terms);
  for (std::size_t i = 0; i < count; ++i) {
    const std::vector<mpq_class> values = exactChebyshevs((2.0 * static_cast<double>(i) - (count - 1.0)) * unit, terms);
    for (std::size_t j = 0; j < terms; ++j)
      for (std::size_t k = 0; k < terms; ++k) exact[j * terms + k] += values[j] * values[k];
  }
  const GridProducts grid = chebyshevProductsOnGrid(count, terms, stretch);
  EXPECT_LT(grid.error, 1e-24 * count);
  for (std::size_t j = 0; j < terms; ++j)
    for (std::size_t k = 0; k < terms; ++k)
      EXPECT_LE(test::distance(grid.products(j, k), exact[j * terms + k]), grid.error) << j << ' ' << k;
}

TEST(ChebyshevBasis, IsPreciseForSomeTermsAndNotForMany) {
  AxisBasis basis;
  basis.count = 20000;
  const auto isPrecise = [&](std::size_t terms) {
    basis.terms = terms;
    basis.recurrence = chebyshevRecurrence(terms);
    return isPreciseInChebyshevs(basis);
  };
  EXPECT_TRUE(isPrecise(2));
  EXPECT_TRUE(isPrecise(12));
  EXPECT_FALSE(isPrecise(60));
}

}  // namespace
}  // namespace tavimor
