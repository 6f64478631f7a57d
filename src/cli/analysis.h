#pragma once

#include <optional>

#include "analysis/grid_residuals.h"
#include "analysis/inference.h"
#include "analysis/remedy.h"
#include "analysis/second_opinion.h"
#include "cli/options.h"
#include "formats/open_problem.h"

namespace tavimor {

/// Where the listed results come from.
enum class ListedFrom { Nowhere, Files, FilesOfOtherData, FitMadeNow };

/// What the advice is worth, tried: the digits of the worst coefficient now and after following it.
struct TriedRemedy {
  Remedy remedy = Remedy::None;
  double digitsNow = 0.0;
  std::optional<double> digitsThen;
};

/// All that `analyse` shows. What there is no exact solution for is empty.
struct Analysis {
  OpenedProblem opened;  // with the changes that options ask for
  ListedFrom listedFrom = ListedFrom::Nowhere;
  double level = 0.95;
  SecondOpinion opinion;
  ListedDigits digits;
  FitStatistics statistics;
  GridResiduals residuals;
  std::optional<double> predictedRSquared;
  std::vector<CoefficientInference> inference;
  TriedRemedy remedy;

  bool hasListed() const { return listedFrom != ListedFrom::Nowhere; }
};

/// Errors: those of reading and of the second opinion; UsageError.
Analysis analysisOf(const std::string& path, const CommandOptions& options);

/// The point of the grid with these indices, a value per variable.
std::vector<double> gridPoint(const Problem& problem, const PerVariable<Long>& index);

/// A term without the "*" in front; "1" for the constant.
std::string plainTerm(const Problem& problem, const PerVariable<Long>& power);

/// An analysis, or a map of degrees, as a JSON object: see docs/analysis-json.md.
std::string analysisJson(const std::string& path, const Analysis& analysis);

}  // namespace tavimor
