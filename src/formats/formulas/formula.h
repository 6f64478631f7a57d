#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/fit.h"
#include "model/fit_figures.h"
#include "model/problem.h"

namespace tavimor {

/// What a formula gives where a variable is outside its interval.
enum class Outside { Extrapolated, NotANumber };

/// The most check points that a formula carries.
inline constexpr Long kMostChecks = 100000;

struct FormulaOptions {
  std::string name;              // of the function, as asked for: each language makes it legal
  std::optional<double> within;  // round the coefficients so that the formula stays this near to the fit
  Long checks = 50;              // the number of check points
  Outside outside = Outside::Extrapolated;
  FitFigures figures = {};  // what is known of the fit beyond its results
};

/// A variable of a formula with the interval of the data: from the least of its values to the greatest, and for
/// equally spaced ones together with the limits that they were made from.
struct FormulaVariable {
  std::string name;
  double lower;
  double upper;
  double centre;  // the formula is in powers of (value - centre)
};

/// A point with the value that the formula has there. `rounding` bounds the difference that another order of rounding
/// can make: a correct copy of the formula is never farther off.
struct CheckPoint {
  PerVariable<double> x{};
  double value = 0.0;
  double rounding = 0.0;
};

/// How far a rounded formula is from the fit.
struct RoundedBy {
  double within;         // what was asked for
  double bound;          // no point of the box is farther off
  double largestOnGrid;  // the largest difference at a grid point
  std::size_t dropped;   // terms that are gone
};

/// What every language makes its text from.
struct Formula {
  std::string name;
  std::vector<FormulaVariable> variables;
  Table4 Coef;  // Coef(j0,j1,j2,j3) multiplies the product of (x_k - centre_k)^jk
  Statistics statistics;
  FitFigures figures;  // of the fit, before any rounding
  Long gridPoints = 0;
  Outside outside = Outside::Extrapolated;
  std::optional<RoundedBy> rounded;
  std::vector<CheckPoint> checks;

  Long last() const { return static_cast<Long>(variables.size()) - 1; }
};

}  // namespace tavimor
