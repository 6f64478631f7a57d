#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "engine/Compute.h"
#include "model/Dimension.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"
#include "report/listing.h"

namespace tavimor::test {

/// One variable of a problem that a test makes.
struct Axis {
  std::string name;
  std::vector<double> values;
  Long degree = 0;
  double centre = 0.0;
};

inline std::vector<double> spaced(double lower, double upper, int count) {
  std::vector<double> values(count);
  for (int i = 0; i < count; ++i) values[i] = lower + i * ((upper - lower) / (count - 1));
  return values;
}

inline void declareVariable(Dimension& model, Long k, const Axis& axis) {
  const auto [least, most] = std::minmax_element(axis.values.begin(), axis.values.end());
  model.VarName[k] = axis.name;
  model.LowerLimit[k] = *least;
  model.UpperLimit[k] = *most;
  model.Centre[k] = axis.centre;
  model.Degree[k] = axis.degree;
  model.LastPoint[k] = static_cast<Long>(axis.values.size()) - 1;
  if (model.LastPoint[k] > 0) model.Step[k] = (*most - *least) / model.LastPoint[k];
  model.ValuesGiven[k] = true;
  model.PeriodFlag[k] = true;
  valueList(model, k) = axis.values;
}

/// A problem whose specifications are captured and whose function is 0 everywhere.
inline Dimension problem(const std::vector<Axis>& axes) {
  Dimension model;
  model.LastVar = static_cast<Long>(axes.size()) - 1;
  model.NumGridPoints = 1;
  for (Long k = 0; k <= model.LastVar; ++k) {
    declareVariable(model, k, axes[k]);
    model.NumGridPoints *= model.LastPoint[k] + 1;
  }
  model.F.redim(model.LastPoint);
  return model;
}

/// Calls visit(i0, i1, i2, i3) for all indices from 0 to `last`, the first one fastest.
template <class Visit>
void forEachIndex(const PerVariable<Long>& last, Visit visit) {
  tavimor::forEachIndex(last, [&](const PerVariable<Long>& i) { visit(i[0], i[1], i[2], i[3]); });
}

/// Sets the function to f(x0, x1, x2, x3) at every grid point.
template <class Function>
void tabulate(Dimension& model, Function f) {
  forEachIndex(model.LastPoint, [&](Long i0, Long i1, Long i2, Long i3) {
    model.F(i0, i1, i2, i3) = f(model.X0[i0], model.X1[i1], model.X2[i2], model.X3[i3]);
  });
}

/// The lines that `print` hands to its sink.
template <class Print>
std::vector<std::string> linesOf(Print print) {
  std::vector<std::string> lines;
  print([&](const std::string& line) { lines.push_back(line); });
  return lines;
}

/// Fits the problem and returns what that added to the list.
inline std::vector<std::string> compute(Dimension& model) {
  return linesOf([&](const LineSink& add) { Compute(model, add); });
}

}  // namespace tavimor::test
