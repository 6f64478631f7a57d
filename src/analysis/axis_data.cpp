#include "analysis/axis_data.h"

#include <algorithm>

#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

AxisData axisData(const Problem& problem, Long k, Reading reading, CentreFrom centre) {
  AxisData axis;
  axis.count = static_cast<std::size_t>(problem.LastPoint[k]) + 1;
  axis.terms = static_cast<std::size_t>(problem.Degree[k]) + 1;
  axis.reading = reading;
  axis.lower = valueRead(problem.LowerLimit[k], reading);
  axis.upper = valueRead(problem.UpperLimit[k], reading);
  axis.centre = centre == CentreFrom::Middle ? middleOf(axis.lower, axis.upper) : valueRead(problem.Centre[k], reading);
  if (reading == Reading::AsTyped && problem.EquallySpaced[k] && axis.count > 1) return axis;
  const std::vector<double>& values = valueList(problem, k);
  if (values.size() < axis.count) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  axis.values = std::span(values).first(axis.count);
  axis.range = pairSums(widestInstructionSet()).range(axis.values.data(), axis.count);
  return axis;
}

}  // namespace

std::size_t ProblemData::points() const {
  std::size_t product = 1;
  for (const AxisData& one : axis) product *= one.count;
  return product;
}

std::size_t ProblemData::terms() const {
  std::size_t product = 1;
  for (const AxisData& one : axis) product *= one.terms;
  return product;
}

PerVariable<CentreFrom> centresFromFields(const AllSpecFields& fields) {
  PerVariable<CentreFrom> centres{};
  for (Long k = 0; k < kMaxVariables; ++k)
    if (fields[k].txtExpansion == "*") centres[k] = CentreFrom::Middle;
  return centres;
}

ProblemData problemData(const Problem& problem, Reading reading, const PerVariable<CentreFrom>& centres) {
  if (problem.F.last() != problem.LastPoint) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  ProblemData data;
  data.lastVariable = problem.LastVar;
  data.function = &problem.F;
  data.reading = reading;
  for (Long k = 0; k < kMaxVariables; ++k) data.axis[k] = axisData(problem, k, reading, centres[k]);
  return data;
}

std::size_t differentValues(const AxisData& axis, std::size_t enough) {
  if (axis.equallySpaced())
    return axis.lower.high == axis.upper.high && axis.lower.low == axis.upper.low ? 1 : std::min(axis.count, enough);
  std::vector<double> seen;  // sorted
  for (const double value : axis.values) {
    const auto place = std::lower_bound(seen.begin(), seen.end(), value);
    if (place != seen.end() && *place == value) continue;
    seen.insert(place, value);
    if (seen.size() >= enough) break;
  }
  return seen.size();
}

}  // namespace tavimor
