#pragma once

#include <string>

#include "analysis/second_opinion.h"
#include "cli/exit_code.h"
#include "engine/fit.h"
#include "formats/open_problem.h"

namespace tavimor {

/// Does what the window's Compute button does, with a progress bar: captures the fields and fits. The outcome's fit
/// takes the place of the problem's, done or not.
FitOutcome fitShowingProgress(OpenedProblem& opened);

/// Fits the problem of that path unless it has a stored fit. False where there is none, which the user has been told
/// then.
bool provideFit(OpenedProblem& opened, const std::string& path);

/// How a command ends that has printed the results of a problem: with NoFit and a line on standard error where one of
/// them is no finite number, else with Success.
ExitCode endOfResults(const std::string& problem, const Fit& fit);

/// A second opinion on the problem, whose fields it captures, with a progress bar.
SecondOpinion opinionShowingProgress(OpenedProblem& opened);

/// The exact least-squares solution of that opinion takes the place of the problem's fit. False where there is none,
/// which the user has been told then.
bool providePreciseFit(OpenedProblem& opened, const SecondOpinion& opinion, const std::string& path);

}  // namespace tavimor
