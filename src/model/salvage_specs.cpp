#include "model/salvage_specs.h"

#include "model/value_lists.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"

namespace tavimor {

namespace {

// Runs one step; where it raises a run-time error everything stays as it is, and the result is false.
template <class Step>
bool succeeds(Step step) {
  try {
    step();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void takeNumber(const std::string& text, double& target) {
  if (IsNumeric(text)) target = Val(text);
}

void takeDegree(const std::string& text, Long& target) {
  succeeds([&] {
    if (IsNumeric(text) && ValLong(text) >= 0) target = ValLong(text);
  });
}

void takeFields(Problem& problem, const SpecFields& fields, Long k) {
  takeNumber(fields.txtLL, problem.LowerLimit[k]);
  takeNumber(fields.txtUL, problem.UpperLimit[k]);
  takeDegree(fields.txtTerms, problem.Degree[k]);
  succeeds(
      [&] { problem.Centre[k] = centreFromText(fields.txtExpansion, problem.LowerLimit[k], problem.UpperLimit[k]); });
  problem.EquallySpaced[k] = fields.chkSpaced;
  problem.PeriodFlag[k] = true;
  problem.TrigFlag[k] = false;
}

// The table of the function with as many values of each variable as its field shows, if that can be.
void takeNumbersOfValues(Problem& problem, const AllSpecFields& fields) {
  problem.LastPoint = problem.F.last();
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const std::string& text = fields[k].txtPoints;
    PerVariable<Long> last = problem.LastPoint;
    const bool isTaken = IsNumeric(text) && succeeds([&] {
                           last[k] = toLong(Val(text) - 1.0);
                           if (last != problem.LastPoint) problem.F.resizeKeeping(last);
                         });
    if (isTaken) problem.LastPoint = last;
  }
  problem.NumGridPoints = static_cast<Long>(problem.F.size());
}

// Values that are not to be equally spaced, or cannot be, stay.
void provideValues(Problem& problem, Long k) {
  ResizeVarValues(problem, k);
  if (problem.LastPoint[k] == 0 || (problem.ValuesGiven[k] && !problem.EquallySpaced[k])) return;
  const std::vector<double> values = valueList(problem, k);
  problem.Step[k] = (problem.UpperLimit[k] - problem.LowerLimit[k]) / problem.LastPoint[k];
  if (!succeeds([&] { generateSpacedValues(problem, k); })) valueList(problem, k) = values;
}

}  // namespace

void salvageSpecs(Problem& problem, Fit& fit, const AllSpecFields& fields) {
  const PerVariable<Long> fittedGrid = problem.F.last();
  takeNumbersOfValues(problem, fields);
  for (Long k = 0; k <= problem.LastVar; ++k) {
    takeFields(problem, fields[k], k);
    provideValues(problem, k);
  }
  fit.FitDone = fit.FitDone && fit.Coef.last() == problem.Degree && fittedGrid == problem.LastPoint;
}

}  // namespace tavimor
