#pragma once

#include <string>

#include "analysis/inference.h"
#include "analysis/second_opinion.h"
#include "formats/open_problem.h"

namespace tavimor {

/// Estimates of the precise solution with their intervals.
class EstimateIntervals {
 public:
  /// Captures the fields of the problem and keeps a reference to it.
  EstimateIntervals(OpenedProblem& opened, double level);

  bool isKnown() const { return opinion_.isExact(); }
  std::string reason() const { return reasonText(opinion_.precise.finding, opened_.problem); }

  /// The estimate, its standard error, the two ends of its confidence interval and those of the prediction interval,
  /// with blanks between; "-" for what is not defined.
  std::string lineAt(const PerVariable<double>& point) const;

 private:
  OpenedProblem& opened_;
  double level_;
  SecondOpinion opinion_;
  FitStatistics statistics_;
};

}  // namespace tavimor
