#include "model/capture_specs.h"

#include "model/value_lists.h"
#include "runtime/checked_arithmetic.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

void captureFields(Problem& problem, const SpecFields& fields, Long k) {
  problem.LowerLimit[k] = Val(fields.txtLL);
  problem.UpperLimit[k] = Val(fields.txtUL);
  problem.Degree[k] = ValLong(fields.txtTerms);
  problem.LastPoint[k] = toLong(Val(fields.txtPoints) - 1.0);
  problem.Centre[k] = centreFromText(fields.txtExpansion, problem.LowerLimit[k], problem.UpperLimit[k]);
  problem.EquallySpaced[k] = fields.chkSpaced;
  problem.PeriodFlag[k] = true;
  problem.TrigFlag[k] = false;
}

double spacing(const Problem& problem, Long k) {
  if (problem.LastPoint[k] == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
  return inRange((problem.UpperLimit[k] - problem.LowerLimit[k]) / problem.LastPoint[k]);
}

}  // namespace

void CaptureSpecs(Problem& problem, const AllSpecFields& fields) {
  for (Long k = 0; k <= problem.LastVar; ++k) captureFields(problem, fields[k], k);
  problem.NumGridPoints = 1;
  for (Long k = 0; k <= problem.LastVar; ++k)
    problem.NumGridPoints = multiplyLongs(addLongs(problem.LastPoint[k], 1), problem.NumGridPoints);
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
