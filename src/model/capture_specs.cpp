#include "model/capture_specs.h"

#include "model/value_lists.h"
#include "runtime/checked_arithmetic.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

std::string nameOf(const Problem& problem, Long k) { return "variable \"" + problem.VarName[k] + '"'; }

Long wholeNumber(double value, const std::string& what) {
  try {
    return toLong(value);
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.number(), {}, what + " is out of range");
  }
}

void captureFields(Problem& problem, const SpecFields& fields, Long k) {
  problem.LowerLimit[k] = Val(fields.txtLL);
  problem.UpperLimit[k] = Val(fields.txtUL);
  problem.Degree[k] = wholeNumber(Val(fields.txtTerms), "the degree of " + nameOf(problem, k));
  problem.LastPoint[k] = wholeNumber(Val(fields.txtPoints) - 1.0, "the number of values of " + nameOf(problem, k));
  problem.Centre[k] = centreFromText(fields.txtExpansion, problem.LowerLimit[k], problem.UpperLimit[k]);
  problem.EquallySpaced[k] = fields.chkSpaced;
  problem.PeriodFlag[k] = true;
  problem.TrigFlag[k] = false;
}

void countGridPoints(Problem& problem) {
  problem.NumGridPoints = 1;
  try {
    for (Long k = 0; k <= problem.LastVar; ++k)
      problem.NumGridPoints = multiplyLongs(addLongs(problem.LastPoint[k], 1), problem.NumGridPoints);
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.number(), {}, "the grid has more points than can be counted");
  }
}

double spacing(const Problem& problem, Long k) {
  if (problem.LastPoint[k] == 0)
    throw RunTimeError(ErrorNumber::DivisionByZero, {}, nameOf(problem, k) + " has a single value");
  return inRange((problem.UpperLimit[k] - problem.LowerLimit[k]) / problem.LastPoint[k]);
}

}  // namespace

void CaptureSpecs(Problem& problem, const AllSpecFields& fields) {
  for (Long k = 0; k <= problem.LastVar; ++k) captureFields(problem, fields[k], k);
  countGridPoints(problem);
  for (Long k = 0; k <= problem.LastVar; ++k) problem.Step[k] = spacing(problem, k);
  RegenerateSpacedValues(problem, spacedMarks(fields));
}

void RegenerateSpacedValues(Problem& problem, const PerVariable<bool>& spaced) {
  for (Long k = 0; k <= problem.LastVar; ++k)
    if (spaced[k]) generateSpacedValues(problem, k);
}

PerVariable<bool> spacedMarks(const AllSpecFields& fields) {
  PerVariable<bool> marks{};
  for (Long k = 0; k < kMaxVariables; ++k) marks[k] = fields[k].chkSpaced;
  return marks;
}

}  // namespace tavimor
