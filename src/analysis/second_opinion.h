#pragma once

#include <string>

#include "analysis/listed_digits.h"
#include "analysis/precise_fit.h"

namespace tavimor {

/// All that a second opinion on a problem rests on. Refers to the tables of the problem.
struct SecondOpinion {
  ProblemData data;
  Decomposition decomposition;
  PreciseFit precise;

  bool isExact() const { return precise.finding.verdict == Verdict::Exact; }
};

/// Errors: OutOfMemory, AnalysisCancelled, SubscriptOutOfRange where the tables are smaller than the counts.
SecondOpinion secondOpinionOn(const Problem& problem, Reading reading = Reading::AsTyped,
                              const PerVariable<CentreFrom>& centres = {}, const AnalysisOptions& options = {});

/// The precise solution in the form of listed results: coefficients and figures rounded to doubles. Figures that
/// cannot be told from 0 are 0; the standard error keeps the divisor N - 2, and is 0 without one.
Fit listedForm(const PreciseFit& precise);

/// The verdict as JSON output has it: "exact", "not certified", "not determined", "not finite".
const char* verdictName(Verdict verdict);

/// Why there is no exact solution, for people; empty where there is one.
std::string reasonText(const Finding& finding, const Problem& problem);

}  // namespace tavimor
