#include "engine/fit_on_grid.h"

#include <vector>

#include "engine/lane_sums.h"
#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

void layCoefficientsIntoCorner(Dimension& model) {
  for (Long j3 = 0; j3 <= model.Degree[3]; ++j3)
    for (Long j2 = 0; j2 <= model.Degree[2]; ++j2)
      for (Long j1 = 0; j1 <= model.Degree[1]; ++j1)
        for (Long j0 = 0; j0 <= model.Degree[0]; ++j0) model.FitGrid(j0, j1, j2, j3) = model.Coef(j0, j1, j2, j3);
}

void evaluatePlainly(const double* coefficients, std::size_t terms, const Axis& axis, double* line) {
  for (std::size_t i = 0; i < axis.count; ++i) {
    const double d = axis.values[i] - axis.centre;
    double sum = 0.0;
    double power = 1.0;
    for (std::size_t a = 0; a < terms; ++a) {
      sum = sum + coefficients[a] * power;
      power = power * d;
    }
    line[i] = sum;
  }
}

// Puts the values of a line's polynomial in the place of its coefficients.
class LineTransform {
 public:
  LineTransform(const Dimension& model, Long k, const ComputeOptions& options)
      : axis_(axisOf(model, k)), stride_(model.FitGrid.stride(k)), coefficients_(model.Coef.extent(k)) {
    const LaneSums* lanes = laneSums(options.instructionSet);
    evaluate_ = lanes != nullptr ? lanes->evaluateLine : evaluatePlainly;
    if (stride_ > 1) row_.resize(axis_.count);
  }

  void apply(double* line) {
    for (std::size_t a = 0; a < coefficients_.size(); ++a) coefficients_[a] = line[a * stride_];
    evaluate_(coefficients_.data(), coefficients_.size(), axis_, stride_ > 1 ? row_.data() : line);
    for (std::size_t i = 0; i < row_.size(); ++i) line[i * stride_] = row_[i];
  }

 private:
  Axis axis_;
  std::size_t stride_;
  std::vector<double> coefficients_;
  std::vector<double> row_;
  void (*evaluate_)(const double*, std::size_t, const Axis&, double*);
};

// Lines that no later axis reads hold no coefficients yet and are passed over.
void transformAxis(Dimension& model, Long k, const ComputeOptions& options) {
  PerVariable<Long> last = model.LastPoint;
  for (Long inner = 0; inner < k; ++inner) last[inner] = model.Degree[inner];
  last[k] = 0;
  LineTransform transform(model, k, options);
  for (Long i3 = 0; i3 <= last[3]; ++i3)
    for (Long i2 = 0; i2 <= last[2]; ++i2)
      for (Long i1 = 0; i1 <= last[1]; ++i1)
        for (Long i0 = 0; i0 <= last[0]; ++i0) transform.apply(&model.FitGrid(i0, i1, i2, i3));
}

}  // namespace

double Deviation(const Dimension& model, Long k, Long i) {
  if (k < 0 || k >= kMaxVariables) return 0.0;
  const std::vector<double>& values = valueList(model, k);
  if (i < 0 || i >= std::ssize(values)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return values[i] - model.Centre[k];
}

void FitOnGrid(Dimension& model, const ComputeOptions& options) {
  model.FitGrid.redim(model.LastPoint);
  layCoefficientsIntoCorner(model);
  for (Long k = model.LastVar; k >= 0; --k) transformAxis(model, k, options);
}

}  // namespace tavimor
