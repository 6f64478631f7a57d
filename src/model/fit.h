#pragma once

#include "model/table4.h"

namespace tavimor {

/// What belongs to a problem once it is fitted. The tables and figures mean something only while FitDone is true.
struct Fit {
  bool FitDone = false;

  Table4 Coef;     // Coef(j0,j1,j2,j3) multiplies the product of (x_k - Centre[k])^jk
  Table4 FitGrid;  // the fitted values, shaped like F

  double CorrCoef = 0.0, StdErr = 0.0, SumRes2 = 0.0, AvgGiven = 0.0, AvgEstimated = 0.0;
};

}  // namespace tavimor
