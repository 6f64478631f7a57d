#include "analysis/degree_search.h"

#include <algorithm>

#include "analysis/part_of_work.h"

namespace tavimor {

namespace {

constexpr std::size_t kBestWithPress = 10;
constexpr double kDecomposed = 0.1;  // the share of the work that the passes for PRESS follow on

ProblemData withDegrees(ProblemData data, const PerVariable<Long>& degrees) {
  for (int k = 0; k < kMaxVariables; ++k) data.axis[k].terms = static_cast<std::size_t>(degrees[k]) + 1;
  return data;
}

std::vector<std::size_t> bestByBic(const std::vector<DegreeCombination>& all) {
  std::vector<std::size_t> order;
  for (std::size_t n = 0; n < all.size(); ++n)
    if (all[n].statistics.bic) order.push_back(n);
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return *all[a].statistics.bic < *all[b].statistics.bic; });
  order.resize(std::min(order.size(), kBestWithPress));
  return order;
}

}  // namespace

std::size_t combinationsUpTo(const PerVariable<Long>& largest) {
  std::size_t product = 1;
  for (const Long degree : largest) product *= static_cast<std::size_t>(degree) + 1;
  return product;
}

PerVariable<Long> largestDegrees(const Problem& problem) {
  const ProblemData data = problemData(problem);
  PerVariable<Long> largest{};
  for (Long k = 0; k <= problem.LastVar; ++k) {
    const Long wished = problem.Degree[k] + 2;
    const auto different = differentValues(data.axis[k], static_cast<std::size_t>(wished) + 1);
    largest[k] = std::min(wished, static_cast<Long>(different) - 1);
  }
  return largest;
}

DegreeSearcher::DegreeSearcher(const ProblemData& data, const PerVariable<Long>& largest,
                               const AnalysisOptions& options)
    : data_(withDegrees(data, largest)),
      options_(options),
      decomposition_(decompose(data_, partOf(options, 0.0, kDecomposed))) {}

DegreeSearch DegreeSearcher::search() const {
  DegreeSearch search{.finding = decomposition_.finding, .combinations = {}, .press = {}};
  if (search.finding.verdict == Verdict::Exact)
    search.combinations = degreeMap(data_, decomposition_, centresOf(data_), options_);
  return search;
}

std::vector<std::optional<double>> DegreeSearcher::pressOfBest(const DegreeSearch& search) const {
  std::vector<std::optional<double>> press(search.combinations.size());
  const std::vector<std::size_t> best = bestByBic(search.combinations);
  const double pass = (1.0 - kDecomposed) / static_cast<double>(best.size());
  double done = kDecomposed;
  for (const std::size_t n : best) {
    const ProblemData lower = withDegrees(data_, search.combinations[n].degrees);
    PerVariable<std::size_t> terms{};
    for (int k = 0; k < kMaxVariables; ++k) terms[k] = lower.axis[k].terms;
    press[n] = gridResiduals(lower, withTerms(decomposition_, terms), partOf(options_, done, done + pass)).press;
    done += pass;
  }
  return press;
}

}  // namespace tavimor
