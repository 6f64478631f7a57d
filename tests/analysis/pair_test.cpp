#include "analysis/pair.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "support/exact_fit.h"

namespace tavimor {
namespace {

using test::exactly;

// Pairs of all magnitudes that the operations are meant for, some of them whole.
class RandomPairs {
 public:
  double number(int mostExponent = 200) {
    const double digits = std::uniform_real_distribution<double>(-1, 1)(random_);
    return std::ldexp(whole_++ % 5 == 0 ? std::round(1000 * digits) : digits,
                      std::uniform_int_distribution<int>(-mostExponent, mostExponent)(random_));
  }
  Pair pair(int mostExponent = 200) {
    const double high = number(mostExponent);
    return quickTwoSum(high, high * 0x1p-54 * std::uniform_real_distribution<double>(-1, 1)(random_));
  }

 private:
  std::mt19937_64 random_{2026};
  int whole_ = 0;
};

double relativeError(const Pair& got, const mpq_class& wanted) {
  if (wanted == 0) return exactly(got) == 0 ? 0.0 : std::numeric_limits<double>::infinity();
  return std::fabs(mpq_class((exactly(got) - wanted) / wanted).get_d());
}

constexpr int kTries = 20000;
constexpr double kU2 = kUnitRoundoff * kUnitRoundoff;

TEST(Pair, ASumOfDoublesIsExact) {
  RandomPairs random;
  for (int n = 0; n < kTries; ++n) {
    const double a = random.number(), b = random.number();
    EXPECT_EQ(exactly(twoSum(a, b)), mpq_class(a) + mpq_class(b));
    const double larger = std::fabs(a) < std::fabs(b) ? b : a, smaller = larger == a ? b : a;
    EXPECT_EQ(exactly(quickTwoSum(larger, smaller)), mpq_class(a) + mpq_class(b));
  }
}

TEST(Pair, AProductOfDoublesIsExactAndHasTheBitsOfAFusedMultiplyAdd) {
  RandomPairs random;
  for (int n = 0; n < kTries; ++n) {
    const double a = random.number(), b = random.number();
    const Pair product = twoProduct(a, b);
    EXPECT_EQ(exactly(product), mpq_class(a) * mpq_class(b));
#ifndef _WIN32  // the function of MinGW-w64 rounds twice
    EXPECT_EQ(product.low, std::fma(a, b, -product.high));
#endif
    EXPECT_EQ(product.high, a * b);
  }
}

TEST(Pair, OperationsKeepTheirErrors) {
  RandomPairs random;
  double sum = 0, product = 0, quotient = 0, root = 0;
  for (int n = 0; n < kTries; ++n) {
    const Pair a = random.pair(30), b = random.pair(30);
    sum = std::max(sum, relativeError(a + b, exactly(a) + exactly(b)));
    sum = std::max(sum, relativeError(a - b, exactly(a) - exactly(b)));
    product = std::max(product, relativeError(a * b, exactly(a) * exactly(b)));
    if (b.high != 0.0) quotient = std::max(quotient, relativeError(a / b, exactly(a) / exactly(b)));
    const Pair squared = squareRoot(magnitude(a)) * squareRoot(magnitude(a));
    root = std::max(root, relativeError(squared, abs(exactly(a))));
  }
  EXPECT_LE(sum, 3 * kU2);
  EXPECT_LE(product, 5 * kU2);
  EXPECT_LE(quotient, kPairError);
  EXPECT_LE(root, 2 * kPairError);
}

TEST(Pair, ASumThatCancelsKeepsItsDigits) {
  const Pair third = Pair(1.0) / Pair(3.0);
  const Pair rest = third + third + third - Pair(1.0);
  EXPECT_LE(std::fabs(rest.high), 4 * kU2);
}

TEST(Pair, PowersOfTwoAreExact) {
  const Pair third = Pair(1.0) / Pair(3.0);
  EXPECT_EQ(exactly(scaled(third, 40)), exactly(third) * (mpz_class(1) << 40));
  EXPECT_EQ(exactly(power(Pair(3.0), 60)), exactly(power(Pair(9.0), 30)));
}

TEST(Pair, ComparesHighPartsThenLowOnes) {
  EXPECT_TRUE(Pair(1.0, -1e-20) < Pair(1.0));
  EXPECT_FALSE(Pair(1.0) < Pair(1.0));
  EXPECT_TRUE(Pair(-2.0) < Pair(-1.0, -1e-20));
}

}  // namespace
}  // namespace tavimor
