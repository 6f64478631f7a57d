#pragma once

#include <functional>
#include <string>

#include "model/Dimension.h"

namespace tavimor {

/// Receives lines one by one: the results list, a printer, standard output.
using LineSink = std::function<void(const std::string&)>;

/// The term that the coefficient of the current multi-index I0..I3 multiplies, written in the variables' names:
/// "*x^2*(y-0.5)"; empty for the constant. PeriodFlag false writes sines and cosines, TrigFlag closes their brackets;
/// each test stands on its own flag.
std::string termText(const Dimension& model);

/// The line of the current multi-index: the coefficient's number text from column 1, the term from column 25 (over
/// the coefficient, should that be longer), then blanks up to a length of 255 plus that of the number text.
std::string BuildCoefficientLine(const Dimension& model);

/// The five statistics, each label 38 columns wide.
void statisticsLines(const Dimension& model, const LineSink& addItem);

/// One line per coefficient, the first index fastest; an empty line after each complete run of the first variable's
/// index, one more after each run of the second's, one more after each run of the third's.
/// Leaves I0..I3 at the last term.
void coefficientLines(Dimension& model, const LineSink& addItem);

/// The results listing: the statistics, an empty line, "COEFFICIENTS:" and the coefficient lines.
void ShowResults(Dimension& model, const LineSink& addItem);

}  // namespace tavimor
