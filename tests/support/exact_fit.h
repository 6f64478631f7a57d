#pragma once

#include <gmpxx.h>

#include <optional>
#include <vector>

#include "analysis/axis_data.h"

namespace tavimor::test {

/// The least-squares problem solved in exact rational arithmetic: the same problem by another route.
struct ExactFit {
  std::vector<mpq_class> coefficients;  // the first index fastest
  mpq_class residualSum, sum, sumOfSquares;
};

/// The number that a double stands for, exactly. As typed: the decimal of 15 digits where that reads back.
mpq_class exactValue(double value, Reading reading);

/// The numbers of a problem, exactly.
struct ExactData {
  PerVariable<std::vector<mpq_class>> values;
  PerVariable<mpq_class> centre;
  std::vector<mpq_class> function;
  PerVariable<std::size_t> terms;
};
ExactData exactData(const Problem& problem, Reading reading, const PerVariable<CentreFrom>& centres = {});

/// Nothing where the data determine no fit.
std::optional<ExactFit> exactFit(const ExactData& data);

/// A pair as it is.
mpq_class exactly(const Pair& pair);

/// The decimal logarithm of a magnitude, -infinity for 0.
double log10Of(const mpq_class& value);

/// |value - exact| as a double, rounded only at the end.
double distance(const Pair& value, const mpq_class& exact);

/// The digits in which a double agrees with the exact value: -log10 of the relative error.
double trueDigits(double value, const mpq_class& exact);

}  // namespace tavimor::test
