#include <nlohmann/json.hpp>

#include "analysis/right_digits.h"
#include "cli/analysis.h"
#include "model/grid_indices.h"
#include "model/value_lists.h"
#include "report/term_text.h"

namespace tavimor {

namespace {

using Json = nlohmann::ordered_json;

Json orNull(const std::optional<double>& value) { return value ? Json(*value) : Json(nullptr); }

Json digitsOrNull(const std::optional<double>& digits) { return digits ? Json(shownDigits(*digits)) : Json(nullptr); }

Json variables(const Problem& problem) {
  Json list = Json::array();
  for (Long k = 0; k <= problem.LastVar; ++k)
    list.push_back({{"name", problem.VarName[k]},
                    {"centre", problem.Centre[k]},
                    {"degree", problem.Degree[k]},
                    {"points", problem.LastPoint[k] + 1}});
  return list;
}

Json powersOf(const Problem& problem, const PerVariable<Long>& power) {
  Json list = Json::array();
  for (Long k = 0; k <= problem.LastVar; ++k) list.push_back(power[k]);
  return list;
}

// Without an exact solution there is what is listed, if anything.
Json coefficient(const Analysis& analysis, const PerVariable<Long>& power, std::size_t n) {
  const Problem& problem = analysis.problem();
  Json one = {{"powers", powersOf(problem, power)}, {"term", plainTermText(problem, power)}};
  one["listed"] = analysis.listed.hasListed() ? Json(analysis.listed.fit.Coef.data()[n]) : Json(nullptr);
  if (!analysis.opinion.isExact()) {
    for (const char* key : {"digits", "precise", "bound", "noise", "standard_error", "t", "p", "low", "high"})
      one[key] = nullptr;
    return one;
  }
  const PreciseCoefficient& precise = analysis.opinion.precise.coefficients[n];
  const CoefficientInference& inference = analysis.inference[n];
  const bool counts = analysis.listed.hasListed() && !precise.isNoise();
  one["digits"] = counts ? Json(shownDigits(analysis.digits.coefficients[n])) : Json(nullptr);
  one["precise"] = precise.solution.rounded();
  one["bound"] = precise.solution.bound;
  one["noise"] = precise.isNoise();
  one["standard_error"] = orNull(inference.standardError);
  one["t"] = orNull(inference.t);
  one["p"] = orNull(inference.p);
  one["low"] = orNull(inference.low);
  one["high"] = orNull(inference.high);
  return one;
}

Json coefficients(const Analysis& analysis) {
  Json list = Json::array();
  if (!analysis.listed.hasListed() && !analysis.opinion.isExact()) return list;
  forEachIndex(analysis.problem().Degree,
               [&](const PerVariable<Long>& power) { list.push_back(coefficient(analysis, power, list.size())); });
  return list;
}

Json statistics(const Analysis& analysis) {
  const FitStatistics& figures = analysis.statistics;
  return {{"rss", figures.rss},
          {"s", orNull(figures.s)},
          {"r_squared", orNull(figures.rSquared)},
          {"adjusted_r_squared", orNull(figures.adjustedRSquared)},
          {"f", orNull(figures.f)},
          {"f_p", orNull(figures.fP)},
          {"press", orNull(analysis.residuals.press)},
          {"predicted_r_squared", orNull(analysis.predictedRSquared)},
          {"aicc", orNull(figures.aicc)},
          {"bic", orNull(figures.bic)},
          {"rms", orNull(figures.rms)},
          {"largest_residual", analysis.residuals.largest},
          {"largest_residual_at", gridPoint(analysis.problem(), analysis.residuals.largestAt)}};
}

Json listedDigitsOf(const ListedDigits& digits) {
  return {{"correlation_coefficient", digitsOrNull(digits.correlation)},
          {"standard_error", digitsOrNull(digits.standardError)},
          {"sum_of_squared_residuals", digitsOrNull(digits.residualSum)},
          {"average_given", digitsOrNull(digits.averageGiven)},
          {"average_estimated", digitsOrNull(digits.averageEstimated)}};
}

const char* actionName(Remedy remedy) {
  switch (remedy) {
    case Remedy::None: return "none";
    case Remedy::CentreInTheMiddle: return "centre in the middle";
    case Remedy::PreciseCoefficients: return "precise coefficients";
  }
  return "";
}

}  // namespace

std::string analysisJson(const std::string& path, const Analysis& analysis) {
  const Problem& problem = analysis.problem();
  const Finding& finding = analysis.opinion.precise.finding;
  const bool exact = analysis.opinion.isExact(), counts = exact && analysis.listed.hasListed();
  const std::string reason = reasonText(finding, problem);
  Json object = {{"problem", path}, {"variables", variables(problem)}, {"verdict", verdictName(finding.verdict)}};
  object["reason"] = reason.empty() ? Json(nullptr) : Json(reason);
  object["points"] = analysis.opinion.data.points();
  object["terms"] = analysis.opinion.data.terms();
  object["coefficients"] = coefficients(analysis);
  object["worst_digits"] = counts ? Json(shownDigits(analysis.digits.worst)) : Json(nullptr);
  object["statistics"] = exact ? statistics(analysis) : Json(nullptr);
  object["listed_digits"] = counts ? listedDigitsOf(analysis.digits) : Json(nullptr);
  object["remedy"] = counts ? Json{{"action", actionName(analysis.remedy.remedy)},
                                   {"digits_now", shownDigits(analysis.remedy.digitsNow)},
                                   {"digits_then", digitsOrNull(analysis.remedy.digitsThen)}}
                            : Json(nullptr);
  return object.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tavimor
