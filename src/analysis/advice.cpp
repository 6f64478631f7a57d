#include "analysis/advice.h"

#include <algorithm>

#include "analysis/degree_search.h"
#include "analysis/figure_texts.h"
#include "analysis/right_digits.h"

namespace tavimor {

namespace {

const std::string kOfDigits = " of " + std::to_string(static_cast<int>(kMostDigits)) + " digits";

std::string termCount(std::size_t terms) { return std::to_string(terms) + (terms == 1 ? " term" : " terms"); }

std::string namedDegrees(const Problem& problem, const PerVariable<Long>& degrees) {
  return (problem.LastVar == 0 ? "degree " : "degrees ") + degreesText(problem, degrees);
}

// As many as the different values of each variable carry.
PerVariable<Long> possibleDegrees(const Problem& problem) {
  PerVariable<Long> largest = largestDegrees(problem);
  for (int k = 0; k < kMaxVariables; ++k) largest[k] = std::min(largest[k], problem.Degree[k]);
  return largest;
}

Advice adviceWithoutSolution(const Analysis& analysis) {
  const Finding& finding = analysis.opinion.precise.finding;
  const std::string reason = reasonText(finding, analysis.problem());
  Advice advice;
  switch (finding.verdict) {
    case Verdict::NotDetermined:
      advice.action = Action::OtherDegrees;
      advice.degrees = possibleDegrees(analysis.problem());
      advice.summary = "the data determine no fit";
      advice.sentence = "The data determine no fit: " + reason + ". They do with " +
                        namedDegrees(analysis.problem(), advice.degrees) + ".";
      break;
    case Verdict::NotFinite:
      advice.summary = "there is no solution";
      advice.sentence = "There is no solution: " + reason + ".";
      break;
    case Verdict::NotCertified:
    case Verdict::Exact:
      advice.summary = "not to be certified";
      advice.sentence = "How many digits are right cannot be told: " + reason + ".";
      break;
  }
  return advice;
}

bool isAllNoise(const PreciseFit& precise) {
  return std::all_of(precise.coefficients.begin(), precise.coefficients.end(),
                     [](const PreciseCoefficient& one) { return one.isNoise(); });
}

// Told where following it brings digits: see TriedRemedy.
void addRemedy(Advice& advice, const Analysis& analysis) {
  const TriedRemedy& tried = analysis.remedy;
  if (tried.remedy == Remedy::None) return;
  if (tried.remedy == Remedy::CentreInTheMiddle) {
    advice.action = Action::CentreInTheMiddle;
    advice.sentence += " Centre in the middle: " + digitsText(tried.digitsThen) + ".";
  } else {
    advice.action = Action::PreciseCoefficients;
  }
  const PreciseFit& precise = analysis.opinion.precise;
  advice.sentence += " Precise coefficients: " + digitsText(listedDigits(listedForm(precise), precise).worst) + ".";
}

// As many coefficients as points fit everything: there is nothing to compare then.
void addDegrees(Advice& advice, const Analysis& analysis, const AnalysisOptions& options) {
  const Problem& problem = analysis.problem();
  if (analysis.statistics.noFreedom || combinationsUpTo(problem.Degree) > kMostCombinations) return;
  const SecondOpinion& opinion = analysis.opinion;
  for (const DegreeCombination& one :
       degreeMap(opinion.data, opinion.decomposition, centresOf(opinion.data), options)) {
    if (!one.recommended || one.degrees == problem.Degree) continue;
    advice.action = Action::OtherDegrees;
    advice.degrees = one.degrees;
    advice.sentence += " By BIC " + namedDegrees(problem, one.degrees) +
                       " would do: " + termCount(one.statistics.terms) + " instead of " +
                       std::to_string(opinion.data.terms()) + ".";
  }
}

}  // namespace

Advice adviceOn(const Analysis& analysis, const AnalysisOptions& options) {
  if (!analysis.opinion.isExact()) return adviceWithoutSolution(analysis);
  Advice advice;
  if (analysis.listed.from == ListedFrom::FilesOfOtherData) {
    advice.summary = "not the fit of the data";
    advice.sentence = "The listed results are NOT the fit of the data: they were saved with other ones.";
    advice.action = Action::FitAgain;
    return advice;
  }
  const std::string digits = digitsText(analysis.digits.worst) + kOfDigits;
  advice.summary = digits + " are right";
  advice.sentence = isAllNoise(analysis.opinion.precise) ? "No coefficient is more than the rounding of the data."
                                                         : digits + " of the worst coefficient are right.";
  addRemedy(advice, analysis);
  if (advice.action == Action::None) addDegrees(advice, analysis, options);
  return advice;
}

}  // namespace tavimor
