#include "cli/estimate_intervals.h"

#include "cli/fitting.h"
#include "runtime/number_text.h"

namespace tavimor {

EstimateIntervals::EstimateIntervals(OpenedProblem& opened, double level) : opened_(opened), level_(level) {
  opinion_ = opinionShowingProgress(opened);
  if (isKnown()) statistics_ = fitStatisticsOf(opinion_.precise);
}

std::string EstimateIntervals::lineAt(const PerVariable<double>& point) const {
  PerVariable<Pair> typed{};
  for (Long k = 0; k <= opened_.problem.LastVar; ++k) typed[k] = typedValue(point[k]);
  const PointEstimate estimate = estimateAt(opinion_.decomposition, typed);
  const EstimateInference inference = inferenceOf(estimate, statistics_, level_);
  std::string line = numberText(estimate.value.rounded());
  for (const auto& one :
       {inference.standardError, inference.low, inference.high, inference.predictionLow, inference.predictionHigh})
    line += one ? ' ' + numberText(*one) : " -";
  return line;
}

}  // namespace tavimor
