#include "model/fit.h"

#include <gtest/gtest.h>

#include <limits>

namespace tavimor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FiniteResults, AreFiniteFiguresAndCoefficients) {
  Fit fit;
  fit.Coef.redim({1, 2, 0, 0});
  EXPECT_TRUE(hasFiniteResults(fit));
}

TEST(FiniteResults, OneFigureThatIsNotFiniteSpoilsThem) {
  for (double Statistics::*figure : {&Statistics::CorrCoef, &Statistics::StdErr, &Statistics::SumRes2,
                                     &Statistics::AvgGiven, &Statistics::AvgEstimated})
    for (const double value : {kInfinity, -kInfinity, kNaN}) {
      Fit fit;
      fit.*figure = value;
      EXPECT_FALSE(hasFiniteResults(fit)) << value;
    }
}

TEST(FiniteResults, OneCoefficientThatIsNotFiniteSpoilsThem) {
  Fit fit;
  fit.Coef.redim({1, 2, 0, 0});
  fit.Coef(1, 2, 0, 0) = kNaN;
  EXPECT_FALSE(hasFiniteResults(fit));
}

}  // namespace
}  // namespace tavimor
