#pragma once

#include <memory>
#include <optional>

#include "analysis/grid_residuals.h"
#include "analysis/inference.h"
#include "analysis/listed_digits.h"
#include "analysis/remedy.h"
#include "analysis/second_opinion.h"
#include "model/spec_fields.h"

namespace tavimor {

/// Where listed results come from.
enum class ListedFrom { Nowhere, Files, FilesOfOtherData, FitMadeNow, PreciseSolution };

/// A problem whose fields have been captured, with what is listed for it.
struct ListedProblem {
  Problem problem;
  AllSpecFields fields;  // as they were captured
  Fit fit;               // where there is one
  ListedFrom from = ListedFrom::Nowhere;

  bool hasListed() const { return from != ListedFrom::Nowhere; }
};

/// What the advice is worth, tried: the digits of the worst coefficient now and after following it.
struct TriedRemedy {
  Remedy remedy = Remedy::None;
  double digitsNow = 0.0;
  std::optional<double> digitsThen;
};

/// All that there is to say of a fit. What there is no exact solution for is empty. Stays where it was made, since its
/// parts refer to one another; may be read by any number of threads.
struct Analysis {
  explicit Analysis(ListedProblem what) : listed(std::move(what)) {}
  Analysis(const Analysis&) = delete;
  Analysis& operator=(const Analysis&) = delete;

  ListedProblem listed;
  double level = 0.95;  // of the intervals
  SecondOpinion opinion;
  ListedDigits digits;  // where something is listed
  FitStatistics statistics;
  GridResiduals residuals;
  std::optional<double> predictedRSquared;
  std::vector<CoefficientInference> inference;  // in the order of the coefficients
  TriedRemedy remedy;

  const Problem& problem() const { return listed.problem; }
};

/// Listed results from files are compared with a fit made now: those of other data are told apart.
/// Errors: OutOfMemory, AnalysisCancelled, SubscriptOutOfRange where the tables are smaller than the counts.
std::unique_ptr<Analysis> analyse(ListedProblem listed, double level = 0.95, Reading reading = Reading::AsTyped,
                                  const AnalysisOptions& options = {});

}  // namespace tavimor
