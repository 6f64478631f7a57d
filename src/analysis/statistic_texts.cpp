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

}  // namespace

std::span<const StatisticText> statisticTexts() { return kTexts; }

}  // namespace tavimor
