#pragma once

#include <string>

#include "model/fit.h"
#include "model/fit_figures.h"
#include "model/problem.h"

namespace tavimor {

/// A table of comma-separated values, a line for each grid point with the last variable fastest: the variables' values,
/// the given value, the fitted one and the residual, given - fitted. Numbers have as many digits as bring their bits
/// back; what is no number is INF, -INF or NAN. The first line names the columns. With figures of the points come their
/// leverage and studentised residual, empty where they are not defined.
/// Errors: as FitOnGrid.
std::string residualTable(const Problem& problem, const Fit& fit, const std::optional<PointFigures>& figures = {});

/// The powers of each term and its coefficient with tabs between, for a spreadsheet; the first line names the columns.
std::string coefficientTable(const Problem& problem, const Fit& fit);

}  // namespace tavimor
