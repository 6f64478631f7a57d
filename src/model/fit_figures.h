#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/table4.h"
#include "runtime/long.h"

namespace tavimor {

/// What a second opinion knows of the coefficients of a fit, in plain values for those who write them out. The lists
/// are in the order in which Coef stands in memory; both are empty where the exact solution is not known.
struct FitFigures {
  std::string doubt;                                  // why the data determine no fit; empty where they do
  Long worstDigits = 0;                               // the least of `digits`
  std::vector<std::optional<Long>> digits;            // right ones, 0 to 15; nothing for a coefficient that is noise
  std::vector<std::optional<double>> standardErrors;  // nothing where no degree of freedom is left

  bool areKnown() const { return !digits.empty(); }
};

/// What it knows of the grid points, in tables shaped like F. NaN where a figure is not defined.
struct PointFigures {
  Table4 leverage;
  Table4 studentised;  // residuals
};

}  // namespace tavimor
