#pragma once

#include <string>
#include <vector>

/// The fit in the plainest form: loops as the formulas state them, no lanes, no threads, no borrowed code. It is the
/// yardstick of speed and, in the tests, the reference for every bit. Always four axes, the first index fastest.
namespace plain {

struct Problem {
  long lastVar = 0;
  std::string name[4];
  double lowerLimit[4] = {}, upperLimit[4] = {}, centre[4] = {};
  long degree[4] = {}, lastPoint[4] = {};
  bool equallySpaced[4] = {};
  std::vector<double> x[4] = {{0.0}, {0.0}, {0.0}, {0.0}};
  std::vector<double> f;

  std::vector<double> coef, fitGrid;
  double corrCoef = 0, stdErr = 0, sumRes2 = 0, avgGiven = 0, avgEstimated = 0;
  bool singular = false, fitDone = false;
};

/// The right-hand side of the normal equations, into coef.
void accumulateRightHandSide(Problem& problem);

/// The whole fit. The number of grid points must be 3 at least and every degree below the number of values.
void fit(Problem& problem);

}  // namespace plain
