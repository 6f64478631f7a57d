#include "report/listing.h"

#include "model/grid_indices.h"
#include "report/term_text.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {
constexpr std::size_t kLinePadding = 255;
}

std::string BuildCoefficientLine(const Problem& problem, const Table4& Coef, const PerVariable<Long>& index) {
  return overlaid(numberText(Coef(index)) + std::string(kLinePadding, ' '), kTermColumn, termText(problem, index));
}

void statisticsLines(const Statistics& figures, const LineSink& addItem) {
  addItem("              CORRELATION COEFFICIENT=" + numberText(figures.CorrCoef));
  addItem("STANDARD ERROR OF ESTIMATE (UNBIASED)=" + numberText(figures.StdErr));
  addItem("                    SUM (RESIDUALS)^2=" + numberText(figures.SumRes2));
  addItem("           AVERAGE OF FUNCTION(GIVEN)=" + numberText(figures.AvgGiven));
  addItem("       AVERAGE OF FUNCTION(ESTIMATED)=" + numberText(figures.AvgEstimated));
}

void coefficientLines(const Problem& problem, const Table4& Coef, const LineSink& addItem) {
  forEachIndex(problem.Degree, [&](const PerVariable<Long>& index) {
    addItem(BuildCoefficientLine(problem, Coef, index));
    // The runs that end with this term: of the first index, of the first and the second, of the first three.
    for (int k = 0; k < kMaxVariables - 1 && index[k] == problem.Degree[k]; ++k) addItem("");
  });
}

void ShowResults(const Problem& problem, const Fit& fit, const LineSink& addItem) {
  statisticsLines(fit, addItem);
  addItem("");
  addItem("COEFFICIENTS:");
  coefficientLines(problem, fit.Coef, addItem);
}

}  // namespace tavimor
