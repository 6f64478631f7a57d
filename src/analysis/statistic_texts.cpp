#include "analysis/statistic_texts.h"

namespace tavimor {

namespace {

constexpr StatisticText kTexts[] = {
    {"rss", "RSS", "sum of the squared residuals"},
    {"s", "standard deviation s", "sqrt(RSS / (N - P))"},
    {"r_squared", "R^2", "1 - RSS / TSS"},
    {"adjusted_r_squared", "adjusted R^2", "1 - (RSS / (N - P)) / (TSS / (N - 1))"},
    {"f", "F", "((TSS - RSS) / (P - 1)) / (RSS / (N - P))"},
    {"f_p", "p of F", "the chance of such an F or a larger one if every coefficient but the mean were 0"},
    {"press", "PRESS", "sum of (residual / (1 - leverage))^2"},
    {"predicted_r_squared", "predicted R^2", "1 - PRESS / TSS"},
    {"aicc", "AICc", "N ln(RSS / N) + 2 K + 2 K (K + 1) / (N - K - 1), K = P + 1"},
    {"bic", "BIC", "N ln(RSS / N) + (P + 1) ln N"},
    {"rms", "RMS residual", "sqrt(RSS / N)"},
    {"largest_residual", "largest residual", "given value - precise estimate, where it is farthest from 0"},
};

constexpr ListedFigureText kListedTexts[] = {
    {"CORRELATION COEFFICIENT", "sqrt(sum of (estimate - mean)^2 / TSS)", "r_squared",
     "R^2 is its square, the share of the variation that the fit explains."},
    {"STANDARD ERROR OF ESTIMATE (UNBIASED)", "sqrt(RSS / (N - 2))", "s",
     "The listed one divides by N - 2, as for a straight line, whatever the degrees; P coefficients leave N - P "
     "degrees "
     "of freedom, and only with those is the deviation unbiased."},
    {"SUM (RESIDUALS)^2", "sum of the squared residuals", "rss", ""},
    {"AVERAGE OF FUNCTION(GIVEN)", "sum of the given values / N", "mean", ""},
    {"AVERAGE OF FUNCTION(ESTIMATED)", "sum of the fitted values / N", "mean",
     "Equal in exact arithmetic: a fit with a constant term has the mean of the data."},
};

}  // namespace

std::span<const StatisticText> statisticTexts() { return kTexts; }

std::span<const ListedFigureText> listedFigureTexts() { return kListedTexts; }

}  // namespace tavimor
