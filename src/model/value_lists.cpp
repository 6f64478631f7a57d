#include "model/value_lists.h"

#include <iterator>
#include <new>
#include <string>

#include "platform/memory.h"
#include "runtime/checked_arithmetic.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

std::string nameOf(const Problem& problem, Long v) { return "variable \"" + problem.VarName[v] + '"'; }

}  // namespace

std::vector<double>& valueList(Problem& problem, Long v) {
  switch (v) {
    case 0: return problem.X0;
    case 1: return problem.X1;
    case 2: return problem.X2;
    case 3: return problem.X3;
    default: throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  }
}

const std::vector<double>& valueList(const Problem& problem, Long v) {
  return valueList(const_cast<Problem&>(problem), v);
}

double& valueOf(Problem& problem, Long v, Long i) {
  std::vector<double>& list = valueList(problem, v);
  if (i < 0 || i >= std::ssize(list))
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, {}, nameOf(problem, v) + " has no value " + std::to_string(i));
  return list[i];
}

double valueOf(const Problem& problem, Long v, Long i) { return valueOf(const_cast<Problem&>(problem), v, i); }

std::vector<double> gridPoint(const Problem& problem, const PerVariable<Long>& index) {
  std::vector<double> point;
  for (Long k = 0; k <= problem.LastVar; ++k) point.push_back(valueOf(problem, k, index[k]));
  return point;
}

void ReserveVarValues(Problem& problem, Long v) {
  if (v < 0 || v >= kMaxVariables) return;
  const Long last = problem.LastPoint[v];
  if (last < 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange, {}, nameOf(problem, v) + " has no values");
  const std::size_t count = static_cast<std::size_t>(last) + 1;
  std::vector<double>& values = valueList(problem, v);
  try {
    values.reserve(count);
    preferLargePages(values.data(), count * sizeof(double));  // before they are touched
  } catch (const std::bad_alloc&) {
    throw RunTimeError(ErrorNumber::OutOfMemory, {}, "for the values of " + nameOf(problem, v));
  }
}

void ResizeVarValues(Problem& problem, Long v) {
  if (v < 0 || v >= kMaxVariables) return;
  ReserveVarValues(problem, v);
  valueList(problem, v).resize(static_cast<std::size_t>(problem.LastPoint[v]) + 1);
}

void generateSpacedValues(Problem& problem, Long v) {
  ResizeVarValues(problem, v);
  for (Long i = 0; i <= problem.LastPoint[v]; ++i)
    valueOf(problem, v, i) = inRange(problem.LowerLimit[v] + static_cast<double>(i) * problem.Step[v]);
}

void giveDefaultValues(Problem& problem, Long v) {
  bool& given = problem.ValuesGiven[v];
  if (given) return;
  given = true;
  generateSpacedValues(problem, v);
}

}  // namespace tavimor
