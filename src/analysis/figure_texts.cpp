#include "analysis/figure_texts.h"

#include <algorithm>
#include <cstdio>

#include "analysis/right_digits.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr char kAsGoodAsZero[] = "0 as far as can be told";

std::string withDigits(double value, int digits) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*G", digits, value);
  return text;
}

std::string pointText(const Problem& problem, const PerVariable<Long>& index) {
  std::string text;
  const std::vector<double> point = gridPoint(problem, index);
  for (std::size_t k = 0; k < point.size(); ++k)
    text += (k > 0 ? ", " : "") + problem.VarName[k] + " = " + numberText(point[k]);
  return text;
}

}  // namespace

std::string textOf(const std::optional<double>& value) { return value ? numberText(*value) : "-"; }

std::string digitsText(const std::optional<double>& digits) {
  return digits ? std::to_string(shownDigits(*digits)) : "-";
}

std::string shortText(const std::optional<double>& value) { return value ? withDigits(*value, 6) : "-"; }

std::string preciseText(const Bounded& solution) {
  const double digits = rightDigits(solution.rounded() + solution.bound, solution);
  if (digits >= kMostDigits) return numberText(solution.rounded());
  return withDigits(solution.rounded(), std::max(1, shownDigits(digits)));
}

std::string figureText(const Analysis& analysis, std::string_view key) {
  const FitStatistics& figures = analysis.statistics;
  if (key == "mean") return numberText(analysis.opinion.precise.mean.rounded());
  if (key == "rss") return figures.residualsAreZero ? kAsGoodAsZero : numberText(figures.rss);
  if (key == "s") return textOf(figures.s);
  if (key == "r_squared") return textOf(figures.rSquared);
  if (key == "adjusted_r_squared") return textOf(figures.adjustedRSquared);
  if (key == "f") return textOf(figures.f);
  if (key == "f_p") return textOf(figures.fP);
  if (key == "press") return textOf(analysis.residuals.press);
  if (key == "predicted_r_squared") return textOf(analysis.predictedRSquared);
  if (key == "aicc") return textOf(figures.aicc);
  if (key == "bic") return textOf(figures.bic);
  if (key == "rms") return textOf(figures.rms);
  if (figures.residualsAreZero) return kAsGoodAsZero;
  return numberText(analysis.residuals.largest) + " at " + pointText(analysis.problem(), analysis.residuals.largestAt);
}

std::string degreesText(const Problem& problem, const PerVariable<Long>& degrees) {
  std::string text;
  for (Long k = 0; k <= problem.LastVar; ++k) text += (k > 0 ? "," : "") + numberText(degrees[k]);
  return text;
}

}  // namespace tavimor
