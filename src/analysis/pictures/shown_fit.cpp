#include "analysis/pictures/shown_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "analysis/distributions.h"
#include "analysis/residual_pass.h"
#include "engine/fit_on_grid.h"

namespace tavimor {

namespace {

bool isFinite(const Table4& table) {
  return std::all_of(table.data(), table.data() + table.size(), [](double value) { return std::isfinite(value); });
}

std::optional<double> reachOf(const FitStatistics& statistics, double level) {
  if (!statistics.s || !std::isnormal(*statistics.s)) return std::nullopt;
  return studentQuantile(level, static_cast<double>(statistics.freedom())) * *statistics.s;
}

double largestMagnitude(const Table4& table) {
  double largest = 0.0;
  for (std::size_t n = 0; n < table.size(); ++n) largest = std::max(largest, std::fabs(table.data()[n]));
  return largest;
}

// The statistics tell it, but for functions whose squares are beyond the range of a double.
bool areZero(const Analysis& analysis, const Table4& residual) {
  constexpr double kRounding = 0x1p-50;
  if (analysis.opinion.decomposition.exponent == 0) return analysis.statistics.residualsAreZero;
  return largestMagnitude(residual) <= kRounding * largestMagnitude(analysis.problem().F);
}

Table4 listedResiduals(const ListedProblem& listed) {
  Table4 residual = FitOnGrid(listed.problem, listed.fit.Coef);
  for (std::size_t n = 0; n < residual.size(); ++n)
    residual.data()[n] = listed.problem.F.data()[n] - residual.data()[n];
  return residual;
}

}  // namespace

std::shared_ptr<const ShownFit> shownFit(std::shared_ptr<const Analysis> analysis, const AnalysisOptions& options) {
  auto fit = std::make_shared<ShownFit>();
  const ListedProblem& listed = analysis->listed;
  const SecondOpinion& opinion = analysis->opinion;
  if (listed.hasListed() && isFinite(listed.fit.Coef))
    fit->listed = FittedFunction::listed(listed.problem, listed.fit.Coef);
  if (opinion.isExact()) {
    fit->exact = FittedFunction::exact(opinion.decomposition);
    fit->reach = reachOf(analysis->statistics, analysis->level);
    fit->residual = residualTable(opinion.data, opinion.decomposition, options);
    fit->residualsAreZero = areZero(*analysis, fit->residual);
  } else if (fit->listed) {
    fit->residual = listedResiduals(listed);
  }
  fit->analysis = std::move(analysis);
  return fit;
}

std::string noFitText(const ShownFit& fit) {
  if (fit.hasFit()) return {};
  if (fit.analysis->listed.hasListed()) return "A coefficient of the fit is no number: there is nothing to show.";
  const std::string reason = reasonText(fit.analysis->opinion.precise.finding, fit.problem());
  return "There is no fit to show" + (reason.empty() ? "." : ": " + reason + ".");
}

}  // namespace tavimor
