#pragma once

#include <cstddef>
#include <string>

#include "model/fit.h"
#include "model/problem.h"
#include "runtime/line_sink.h"

namespace tavimor {

/// The column of a coefficient line in which the term begins, the first column being 1.
inline constexpr std::size_t kTermColumn = 25;

/// The line of a coefficient: its number text from column 1, the term from kTermColumn (over the coefficient, should
/// that be longer), then blanks up to a length of 255 plus that of the number text.
std::string BuildCoefficientLine(const Problem& problem, const Table4& Coef, const PerVariable<Long>& index);

/// The five statistics, each label 38 columns wide.
void statisticsLines(const Statistics& figures, const LineSink& addItem);

/// One line per coefficient, the first index fastest; an empty line after each complete run of the first variable's
/// index, one more after each run of the second's, one more after each run of the third's.
void coefficientLines(const Problem& problem, const Table4& Coef, const LineSink& addItem);

/// The results listing: the statistics, an empty line, "COEFFICIENTS:" and the coefficient lines.
void ShowResults(const Problem& problem, const Fit& fit, const LineSink& addItem);

}  // namespace tavimor
