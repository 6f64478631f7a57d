#pragma once

#include "model/table4.h"

namespace tavimor {

/// The figures that are listed with a fit.
struct Statistics {
  double CorrCoef = 0.0, StdErr = 0.0, SumRes2 = 0.0, AvgGiven = 0.0, AvgEstimated = 0.0;
};

/// What belongs to a problem once it is fitted. Tables and figures mean something only while FitDone is true.
struct Fit : Statistics {
  bool FitDone = false;
  Table4 Coef;     // Coef(j0,j1,j2,j3) multiplies the product of (x_k - Centre[k])^jk
  Table4 FitGrid;  // the fitted values, shaped like F
};

/// Whether the figures and the coefficients are finite numbers, none of them an infinity or a NaN.
bool hasFiniteResults(const Fit& fit);

}  // namespace tavimor
