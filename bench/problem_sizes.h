#pragma once

#include <array>
#include <cmath>

#include "model/Dimension.h"
#include "model/value_lists.h"

/// The problems that are measured: smooth functions tabulated on grids.
namespace tavimor::bench {

struct ProblemSize {
  const char* name;
  const char* describes;
  Long variables;
  Long values;  // of each variable
  Long degree;  // of each variable
};

inline constexpr std::array kProblemSizes = {
    ProblemSize{"S", "2vars_21pts_deg5", 2, 21, 5},          ProblemSize{"M", "3vars_41pts_deg6", 3, 41, 6},
    ProblemSize{"L", "4vars_21pts_deg5", 4, 21, 5},          ProblemSize{"XL", "2vars_1001pts_deg9", 2, 1001, 9},
    ProblemSize{"W", "1var_1048576pts_deg8", 1, 1 << 20, 8},
};

inline double smoothFunction(const PerVariable<double>& x) {
  return std::exp(-0.3 * x[0]) * std::cos(1.7 * x[1] + 0.4) + std::sin(x[0] + 0.6 * x[2]) * (1.0 + 0.25 * x[3]);
}

inline Dimension makeProblem(const ProblemSize& size) {
  Dimension model;
  model.LastVar = size.variables - 1;
  model.NumGridPoints = 1;
  for (Long k = 0; k < size.variables; ++k) {
    model.VarName[k] = std::string(1, "xyzw"[k]);
    model.LowerLimit[k] = -1.0;
    model.UpperLimit[k] = 1.5;
    model.Centre[k] = 0.25;
    model.Degree[k] = size.degree;
    model.LastPoint[k] = size.values - 1;
    model.Step[k] = (model.UpperLimit[k] - model.LowerLimit[k]) / model.LastPoint[k];
    model.PeriodFlag[k] = true;
    model.NumGridPoints *= size.values;
    generateSpacedValues(model, k);
  }
  model.F.redim(model.LastPoint);
  for (Long i3 = 0; i3 <= model.LastPoint[3]; ++i3)
    for (Long i2 = 0; i2 <= model.LastPoint[2]; ++i2)
      for (Long i1 = 0; i1 <= model.LastPoint[1]; ++i1)
        for (Long i0 = 0; i0 <= model.LastPoint[0]; ++i0)
          model.F(i0, i1, i2, i3) = smoothFunction({model.X0[i0], model.X1[i1], model.X2[i2], model.X3[i3]});
  return model;
}

}  // namespace tavimor::bench
