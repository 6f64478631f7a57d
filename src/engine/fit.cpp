#include "engine/fit.h"

#include <future>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "engine/called_off.h"
#include "engine/fit_on_grid.h"
#include "engine/right_hand_side.h"
#include "engine/solver.h"
#include "engine/statistics.h"
#include "runtime/beside.h"
#include "runtime/run_time_error.h"

namespace tavimor {

namespace {

// The first axis, declared or not, on which the grid has no room for the coefficients.
std::optional<Long> axisWithoutRoom(const Problem& problem) {
  for (Long k = 0; k < kMaxVariables; ++k)
    if (problem.Degree[k] > problem.LastPoint[k]) return k;
  return std::nullopt;
}

// The normal matrices need nothing of the right-hand side. Those of long axes are made beside it, in threads of their
// own, the others when they are asked for.
std::vector<std::future<Gram>> normalMatrices(const Problem& problem, const FitOptions& options) {
  constexpr double workWorthAThread = 1e7;
  std::vector<std::future<Gram>> matrices;
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const double terms = problem.Degree[k] + 1.0;
    const bool pays = options.threads != 1 && problem.LastPoint[k] * terms * terms > workWorthAThread;
    const auto work = [&problem, k, &options] { return normalMatrix(problem, k, options); };
    matrices.push_back(pays ? startBeside(work) : std::async(std::launch::deferred, work));
  }
  return matrices;
}

// The first variable whose system is singular; nothing where Coef has become the solution.
std::optional<Long> solve(std::vector<std::future<Gram>> matrices, const FitOptions& options, Table4& Coef) {
  for (std::size_t k = 0; k < matrices.size(); ++k) {
    Gram gram = matrices[k].get();
    if (solveAlong(static_cast<Long>(k), gram, Coef, options) == Solution::Singular) return static_cast<Long>(k);
  }
  return std::nullopt;
}

// A few bytes of a file can ask for a degree that has no room, and for hours of elimination to tell whether its system
// is singular too: that is refused at once.
void requireShortWork(const Problem& problem) {
  constexpr Long mostDegree = 1023;
  constexpr double mostWork = 1e10;  // multiplications and additions: some two seconds
  double work = 0.0;
  for (Long k = 0; k < kMaxVariables; ++k) {
    const double terms = problem.Degree[k] + 1.0;
    work += (problem.LastPoint[k] + terms) * terms * terms;
    if (problem.Degree[k] > mostDegree || work > mostWork) throw RunTimeError(ErrorNumber::OutOfMemory);
  }
}

// The first variable whose system is singular, found on a single line: no larger table is needed to tell.
std::optional<Long> singularVariable(const Problem& problem, const FitOptions& options) {
  requireShortWork(problem);
  for (Long k = 0; k <= problem.LastVar; ++k) {
    PerVariable<Long> line{};
    line[k] = problem.Degree[k];
    Table4 Coef;
    Coef.redim(line);
    Gram gram = normalMatrix(problem, k, options);
    if (solveAlong(k, gram, Coef, options) == Solution::Singular) return k;
  }
  return std::nullopt;
}

// With too high a degree the fitted values find no room and the fit ends with a subscript error, unless a system is
// singular before that; the coefficients are not needed for either.
void endWithoutRoom(const Problem& problem, Long variable, const FitOptions& options, FitOutcome& outcome) {
  const std::optional<Long> singular = singularVariable(problem, options);
  outcome.end = singular ? FitEnd::Singular : FitEnd::NoRoom;
  outcome.variable = singular.value_or(variable);
  if (!singular) outcome.ErrNumber = static_cast<Long>(ErrorNumber::SubscriptOutOfRange);
}

// The statistics, and the fitted values that they rest on where these are kept.
StatisticsOutcome statisticsOf(const Problem& problem, double sumGiven, const FitOptions& options, Fit& fit) {
  const auto withStrips = [&](const FittedStrip& strips) {
    return fitStatistics(problem.F, strips, sumGiven, problem.NumGridPoints, fit, options);
  };
  if (options.fittedValues == FittedValues::Kept) {
    fit.FitGrid = FitOnGrid(problem, fit.Coef, options);
    return withStrips(stripsOf(fit.FitGrid));
  }
  const FittedRows rows(problem, fit.Coef, options);
  return withStrips([&rows](std::size_t first, std::span<double> turned) { rows.strip(first, turned); });
}

void fitInto(const Problem& problem, const FitOptions& options, FitOutcome& outcome) {
  if (const auto variable = axisWithoutRoom(problem)) return endWithoutRoom(problem, *variable, options, outcome);
  for (Long k = 0; k <= problem.LastVar; ++k) requireNormalMatrix(problem.Degree[k]);
  Fit& fit = outcome.fit;
  std::vector<std::future<Gram>> matrices = normalMatrices(problem, options);
  fit.Coef = rightHandSide(problem, options);
  const double sumGiven = fit.Coef(0, 0, 0, 0);  // the sum of F times the term 1
  if (const auto singular = solve(std::move(matrices), options, fit.Coef)) {
    outcome.end = FitEnd::Singular;
    outcome.variable = *singular;
    return;
  }
  const StatisticsOutcome statistics = statisticsOf(problem, sumGiven, options, fit);
  static_cast<Statistics&>(fit) = statistics.figures;
  outcome.ErrNumber = statistics.ErrNumber;
  fit.FitDone = true;
}

void endWithError(ErrorNumber number, FitOutcome& outcome) {
  outcome.end = FitEnd::Error;
  outcome.ErrNumber = static_cast<Long>(number);
}

}  // namespace

FitOutcome fit(const Problem& problem, const FitOptions& options, const Statistics& earlier) {
  FitOutcome outcome;
  static_cast<Statistics&>(outcome.fit) = earlier;
  try {
    fitInto(problem, options, outcome);
  } catch (const RunTimeError& error) {
    endWithError(error.number(), outcome);
    outcome.detail = error.detail();
  } catch (const std::bad_alloc&) {
    endWithError(ErrorNumber::OutOfMemory, outcome);
  } catch (const CalledOff&) {
    outcome.end = FitEnd::CalledOff;
  }
  return outcome;
}

}  // namespace tavimor
