#include "engine/fit_on_grid.h"

#include "engine/gram.h"
#include "model/var_values.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

void layCoefficientsIntoCorner(Dimension& model) {
  for (Long j3 = 0; j3 <= model.Degree[3]; ++j3)
    for (Long j2 = 0; j2 <= model.Degree[2]; ++j2)
      for (Long j1 = 0; j1 <= model.Degree[1]; ++j1)
        for (Long j0 = 0; j0 <= model.Degree[0]; ++j0) model.FitGrid(j0, j1, j2, j3) = model.Coef(j0, j1, j2, j3);
}

void evaluateLine(const std::vector<double>& coefficients, const std::vector<double>& d, double* line,
                  std::size_t stride) {
  for (std::size_t i = 0; i < d.size(); ++i) {
    double sum = 0.0;
    double power = 1.0;
    for (const double c : coefficients) {
      sum = sum + c * power;
      power = power * d[i];
    }
    line[i * stride] = sum;
  }
}

// Lines that no later axis reads hold no coefficients yet and are passed over.
void transformAxis(Dimension& model, Long k) {
  PerVariable<Long> last = model.LastPoint;
  for (Long inner = 0; inner < k; ++inner) last[inner] = model.Degree[inner];
  last[k] = 0;
  const std::size_t stride = model.FitGrid.stride(k);
  const std::vector<double> d = deviations(model, k);
  std::vector<double> coefficients(static_cast<std::size_t>(model.Degree[k]) + 1);
  for (Long i3 = 0; i3 <= last[3]; ++i3)
    for (Long i2 = 0; i2 <= last[2]; ++i2)
      for (Long i1 = 0; i1 <= last[1]; ++i1)
        for (Long i0 = 0; i0 <= last[0]; ++i0) {
          double* line = &model.FitGrid(i0, i1, i2, i3);
          for (std::size_t a = 0; a < coefficients.size(); ++a) coefficients[a] = line[a * stride];
          evaluateLine(coefficients, d, line, stride);
        }
}

}  // namespace

double Deviation(const Dimension& model, Long k, Long i) {
  if (k < 0 || k >= kMaxVariables) return 0.0;
  const std::vector<double>& values = valueList(model, k);
  if (i < 0 || i >= std::ssize(values)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return values[i] - model.Centre[k];
}

void FitOnGrid(Dimension& model, const ComputeOptions&) {
  model.FitGrid.redim(model.LastPoint);
  layCoefficientsIntoCorner(model);
  for (Long k = model.LastVar; k >= 0; --k) transformAxis(model, k);
}

}  // namespace tavimor
