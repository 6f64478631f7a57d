#pragma once

#include "analysis/degree_map.h"

namespace tavimor {

/// More combinations of degrees than these are too many to look through.
constexpr std::size_t kMostCombinations = 20000;

/// How many combinations there are up to the largest degrees.
std::size_t combinationsUpTo(const PerVariable<Long>& largest);

/// Two more than the degrees of the problem, as far as the values of each variable allow.
PerVariable<Long> largestDegrees(const Problem& problem);

/// A map of degrees; of one whose verdict is not Exact there are no combinations.
struct DegreeSearch {
  Finding finding;
  std::vector<DegreeCombination> combinations;
  std::vector<std::optional<double>> press;  // of the best, see pressOfBest; empty where it was not asked for
};

/// Looks for the degrees that fit best. Refers to the tables of the problem. Making it is one pass over the data.
/// Errors: OutOfMemory, AnalysisCancelled.
class DegreeSearcher {
 public:
  DegreeSearcher(const ProblemData& data, const PerVariable<Long>& largest, const AnalysisOptions& options = {});

  DegreeSearch search() const;

  /// PRESS needs a pass over the data for each combination: of the ten with the least BIC only.
  std::vector<std::optional<double>> pressOfBest(const DegreeSearch& search) const;

 private:
  ProblemData data_;
  AnalysisOptions options_;
  Decomposition decomposition_;
};

}  // namespace tavimor
