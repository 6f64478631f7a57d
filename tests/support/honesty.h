#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "analysis/precise_fit.h"
#include "model/Dimension.h"

namespace tavimor::test {

/// A problem whose least-squares solution is to be compared with exact arithmetic.
struct JudgedProblem {
  Dimension model;
  Reading reading = Reading::AsTyped;
  PerVariable<CentreFrom> centres{};
};

/// Of one to three variables, well or badly placed centres, values that are equally spaced, typed with few or many
/// digits, repeated or too few, and a function that is a polynomial, whole or with noise.
JudgedProblem randomJudgedProblem(std::mt19937_64& random);

/// How claims compare with the exact solution. Logarithms are decimal.
struct Honesty {
  std::size_t problems = 0, singular = 0, notCertified = 0, coefficients = 0, noise = 0;
  std::size_t wrongVerdicts = 0;       // singular or not
  double mostClaimedTooHigh = -1e300;  // claimed right digits less true ones
  double mostErrorOverBound = -1e300;  // the logarithm, for coefficients and sums
  double fewestDigits = 1e300;         // of a precise coefficient that is no noise

  void add(const Honesty& other);
};

/// As the table of docs/numerics.md has it: what is measured, and the number or numbers.
std::vector<std::pair<std::string, std::string>> rowsOf(const Honesty& honesty);

/// The table is made from so many problems that are drawn one after the other from this seed.
constexpr int kProblemsOfThePage = 10000;
constexpr unsigned kSeedOfThePage = 20261121;

/// Fits the problem, asks for the second opinion and compares both with the exact solution.
Honesty judged(JudgedProblem problem);

}  // namespace tavimor::test
