#include "report/no_fit_text.h"

#include "runtime/number_text.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

std::string tooHighDegree(const Problem& problem, Long k) {
  return "the degree of variable \"" + problem.VarName[k] + "\" (" + numberText(problem.Degree[k]) +
         ") is not below its number of values (" + numberText(addLongs(problem.LastPoint[k], 1)) + ")";
}

}  // namespace

std::string reasonForNoFit(const Problem& problem, const FitOutcome& outcome) {
  if (outcome.end == FitEnd::Singular) return kSingularMatrix;
  if (outcome.end == FitEnd::NoRoom) return "no fit: " + tooHighDegree(problem, outcome.variable);
  if (outcome.end == FitEnd::CalledOff) return "no fit: called off";
  const std::string reason = std::string("no fit: ") + description(static_cast<ErrorNumber>(outcome.ErrNumber));
  return outcome.detail.empty() ? reason : reason + " (" + outcome.detail + ')';
}

}  // namespace tavimor
