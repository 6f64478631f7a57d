#include "engine/fit_on_grid.h"

#include <algorithm>
#include <vector>

#include "engine/called_off.h"
#include "engine/lane_sums.h"
#include "model/grid_indices.h"
#include "model/table_strips.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

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
  LineTransform(const Axis& axis, std::size_t stride, std::size_t terms, const FitOptions& options)
      : axis_(axis), stride_(stride), options_(options), coefficients_(terms) {
    const LaneSums* lanes = laneSums(options.instructionSet);
    evaluate_ = lanes != nullptr ? lanes->evaluateLine : evaluatePlainly;
    if (stride_ > 1) row_.resize(axis_.count);
  }

  void apply(double* line) {
    for (std::size_t a = 0; a < coefficients_.size(); ++a) coefficients_[a] = line[a * stride_];
    evaluate(stride_ > 1 ? row_.data() : line);
    for (std::size_t i = 0; i < row_.size(); ++i) line[i * stride_] = row_[i];
  }

 private:
  void evaluate(double* values) const {
    const std::size_t part =
        piecesBetweenLooks(static_cast<double>(coefficients_.size()), kFewestPoints, axis_.count + kFewestPoints);
    for (std::size_t first = 0; first < axis_.count; first += part) {
      endIfCalledOff(options_);
      const Axis points{axis_.values + first, std::min(part, axis_.count - first), axis_.centre};
      evaluate_(coefficients_.data(), coefficients_.size(), points, values + first);
    }
  }

  static constexpr std::size_t kFewestPoints = 64;  // fewer at a time do not pay

  Axis axis_;
  std::size_t stride_;
  const FitOptions& options_;
  std::vector<double> coefficients_;
  std::vector<double> row_;
  void (*evaluate_)(const double*, std::size_t, const Axis&, double*);
};

// Lines that no later axis reads hold no coefficients yet and are passed over.
void transformAxis(const Problem& problem, Long k, LineTransform transform, Table4& grid) {
  PerVariable<Long> lines = problem.LastPoint;
  for (Long inner = 0; inner < k; ++inner) lines[inner] = problem.Degree[inner];
  lines[k] = 0;
  forEachIndex(lines, [&](const PerVariable<Long>& first) { transform.apply(&grid(first)); });
}

void evaluateRowsPlainly(const RowPowers& powers, const double* coefficients, std::size_t length, double* values) {
  for (std::size_t row = 0; row < powers.rows; ++row)
    for (std::size_t n = 0; n < length; ++n) {
      double sum = 0.0;
      for (std::size_t a = 0; a < powers.terms; ++a)
        sum = sum + coefficients[a * length + n] * powers.of[a * powers.rows + row];
      values[row * length + n] = sum;
    }
}

// By repeated multiplication, as everywhere.
void setPowers(const Axis& points, std::size_t terms, std::vector<double>& powers) {
  powers.resize(terms * points.count);
  for (std::size_t row = 0; row < points.count; ++row) {
    const double d = points.values[row] - points.centre;
    double power = 1.0;
    for (std::size_t a = 0; a < terms; ++a) {
      powers[a * points.count + row] = power;
      power = power * d;
    }
  }
}

}  // namespace

double Deviation(const Problem& problem, Long k, Long i) {
  if (k < 0 || k >= kMaxVariables) return 0.0;
  return valueOf(problem, k, i) - problem.Centre[k];
}

namespace {

// Values along the axes from `firstAxis` on, coefficients along those before it.
Table4 fitAlongAxes(const Problem& problem, const Table4& Coef, Long firstAxis, const FitOptions& options) {
  PerVariable<Long> last = problem.LastPoint;
  for (Long k = 0; k < firstAxis; ++k) last[k] = problem.Degree[k];
  Table4 grid;
  grid.redim(last);
  forEachIndex(Coef.last(), [&](const PerVariable<Long>& j) { grid(j) = Coef(j); });
  for (Long k = problem.LastVar; k >= firstAxis; --k)
    transformAxis(problem, k, LineTransform(axisOf(problem, k), grid.stride(k), Coef.extent(k), options), grid);
  return grid;
}

}  // namespace

Table4 FitOnGrid(const Problem& problem, const Table4& Coef, const FitOptions& options) {
  return fitAlongAxes(problem, Coef, 0, options);
}

FittedRows::FittedRows(const Problem& problem, const Table4& Coef, const FitOptions& options)
    : axis_(axisOf(problem, 0)), terms_(Coef.extent(0)) {
  const LaneSums* lanes = laneSums(options.instructionSet);
  evaluateLine_ = lanes != nullptr ? lanes->evaluateLine : evaluatePlainly;
  evaluateRows_ = lanes != nullptr ? lanes->evaluateRows : evaluateRowsPlainly;
  const Table4 coefficients = fitAlongAxes(problem, Coef, 1, options);
  length_ = coefficients.size() / terms_;
  rows_.resize(coefficients.size());
  turnStrip(coefficients, 0, rows_);
}

void FittedRows::strip(std::size_t first, std::span<double> turned) const {
  const Axis points{axis_.values + first, turned.size() / length_, axis_.centre};
  if (length_ == 1) return evaluateLine_(rows_.data(), terms_, points, turned.data());
  std::vector<double> powers;
  for (std::size_t row = 0; row < points.count;) {
    const std::size_t rows = points.count - row < kRowsTogether ? 1 : kRowsTogether;
    setPowers({points.values + row, rows, points.centre}, terms_, powers);
    evaluateRows_({powers.data(), terms_, rows}, rows_.data(), length_, turned.data() + row * length_);
    row += rows;
  }
}

}  // namespace tavimor
