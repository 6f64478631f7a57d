#include "formats/formulas/make_formula.h"

#include <algorithm>
#include <cmath>

#include "formats/formulas/check_points.h"
#include "formats/formulas/rounded_coefficients.h"
#include "model/value_lists.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

FormulaVariable variableOf(const Problem& problem, Long k) {
  const auto& values = valueList(problem, k);
  if (values.empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
  FormulaVariable variable{problem.VarName[k], *least, *greatest, problem.Centre[k]};
  if (problem.EquallySpaced[k]) {
    variable.lower = std::min({variable.lower, problem.LowerLimit[k], problem.UpperLimit[k]});
    variable.upper = std::max({variable.upper, problem.LowerLimit[k], problem.UpperLimit[k]});
  }
  return variable;
}

}  // namespace

bool hasFormula(const Fit& fit) {
  return fit.FitDone && std::all_of(fit.Coef.data(), fit.Coef.data() + fit.Coef.size(),
                                    [](double coefficient) { return std::isfinite(coefficient); });
}

Formula formulaOf(const Problem& problem, const Fit& fit, const FormulaOptions& options) {
  if (!hasFormula(fit)) throw RunTimeError(ErrorNumber::InvalidCall);
  Formula formula;
  formula.name = options.name;
  for (Long k = 0; k <= problem.LastVar; ++k) formula.variables.push_back(variableOf(problem, k));
  formula.Coef = fit.Coef;
  formula.statistics = fit;
  formula.figures = options.figures;
  formula.gridPoints = static_cast<Long>(problem.F.size());
  formula.outside = options.outside;
  if (options.within) roundWithin(formula, problem, *options.within);
  formula.checks = checkPoints(formula, problem, options.checks);
  return formula;
}

}  // namespace tavimor
