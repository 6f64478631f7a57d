#pragma once

#include "analysis/second_opinion.h"
#include "model/fit.h"
#include "model/fit_figures.h"

namespace tavimor {

/// What the opinion knows of the coefficients that are listed. Without an exact solution there is the doubt, if any.
/// Errors: SubscriptOutOfRange where the fit has other degrees than the problem.
FitFigures fitFigures(const SecondOpinion& opinion, const Problem& problem, const Fit& listed);

/// Of each grid point the leverage h and the studentised residual r / (s sqrt(1 - h)), with r the residual of the exact
/// solution and s its standard error. That is not defined where h is 1, no degree of freedom is left or all residuals
/// are 0 as far as can be told; without an exact solution nothing is.
/// Source: Cook and Weisberg, Residuals and Influence in Regression, 1982, ch. 2.
/// Errors: OutOfMemory, AnalysisCancelled.
PointFigures pointFigures(const SecondOpinion& opinion, const Problem& problem, const AnalysisOptions& options = {});

}  // namespace tavimor
