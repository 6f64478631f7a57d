#include "analysis/remedy.h"

namespace tavimor {

namespace {

constexpr double kWorthwhileGain = 1.0;

}  // namespace

PerVariable<Pair> middlesOf(const ProblemData& data) {
  PerVariable<Pair> middle;
  for (Long k = 0; k < kMaxVariables; ++k)
    middle[k] = k <= data.lastVariable ? middleOf(data.axis[k].lower, data.axis[k].upper) : data.axis[k].centre;
  return middle;
}

RemedyAdvice adviseRemedy(const ProblemData& data, const Decomposition& decomposition, double digitsNow,
                          double enough) {
  RemedyAdvice advice;
  const auto predicted = [&](const PerVariable<Pair>& centre) {
    return DigitPredictor(data, decomposition, centre).worstDigits(decomposition.z.extent);
  };
  advice.predictedNow = predicted(centresOf(data));
  advice.predictedInTheMiddle = predicted(middlesOf(data));
  if (advice.predictedInTheMiddle - advice.predictedNow >= kWorthwhileGain)
    advice.remedy = Remedy::CentreInTheMiddle;
  else if (digitsNow < enough)
    advice.remedy = Remedy::PreciseCoefficients;
  return advice;
}

}  // namespace tavimor
