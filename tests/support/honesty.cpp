#include "support/honesty.h"

#include <algorithm>
#include <cmath>

#include "analysis/right_digits.h"
#include "model/capture_specs.h"
#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/val.h"
#include "support/exact_fit.h"
#include "support/problem.h"

namespace tavimor::test {

namespace {

class Maker {
 public:
  explicit Maker(std::mt19937_64& random) : random_(random) {}

  JudgedProblem problem() {
    JudgedProblem made;
    const Long variables = whole(1, 3);
    const Long mostPoints[] = {0, 60, 14, 7};
    const Long mostDegree[] = {0, 12, 5, 3};
    made.model.LastVar = variables - 1;
    made.model.NumGridPoints = 1;
    made.reading = whole(1, 4) == 1 ? Reading::AsStored : Reading::AsTyped;
    const bool singular = whole(1, 10) == 1;
    for (Long k = 0; k < variables; ++k) {
      declare(made, k, whole(2, mostPoints[variables]), mostDegree[variables], singular && k == 0);
      made.model.NumGridPoints *= made.model.LastPoint[k] + 1;
    }
    made.model.F.redim(made.model.LastPoint);
    tabulateSomething(made.model);
    return made;
  }

 private:
  Long whole(Long least, Long most) { return std::uniform_int_distribution<Long>(least, most)(random_); }
  double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(random_); }

  // Like a number that was typed with so many digits.
  static double typed(double value, int digits) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*E", digits - 1, value);
    return Val(text);
  }

  void declare(JudgedProblem& made, Long k, Long count, Long mostDegree, bool tooFew) {
    Dimension& model = made.model;
    const double middle = whole(0, 1) == 0 ? 0.0 : typed(between(-1, 1) * std::pow(10, whole(-3, 4)), 3);
    const double half = typed(between(0.5, 5) * std::pow(10, whole(-2, 3)), 3);
    model.VarName[k] = std::string(1, "xyz"[k]);
    model.LowerLimit[k] = typed(middle - half, 6);
    model.UpperLimit[k] = typed(middle + half, 6);
    model.LastPoint[k] = count - 1;
    model.Degree[k] = whole(0, std::min(mostDegree, count - 1));
    model.EquallySpaced[k] = !tooFew && whole(0, 1) == 0;
    model.Step[k] = (model.UpperLimit[k] - model.LowerLimit[k]) / model.LastPoint[k];
    model.PeriodFlag[k] = model.ValuesGiven[k] = true;
    generateSpacedValues(model, k);
    if (!model.EquallySpaced[k]) placeValues(model, k, static_cast<int>(whole(3, 17)));
    if (tooFew) repeatValues(model, k);
    chooseCentre(made, k, middle, half);
  }

  void placeValues(Dimension& model, Long k, int digits) {
    for (double& value : valueList(model, k)) value = typed(between(model.LowerLimit[k], model.UpperLimit[k]), digits);
    if (whole(0, 3) == 0) valueList(model, k).back() = valueList(model, k).front();
  }

  // No more different values than the degree.
  void repeatValues(Dimension& model, Long k) {
    model.Degree[k] = std::max<Long>(1, model.Degree[k]);
    std::vector<double>& values = valueList(model, k);
    const auto different = static_cast<std::size_t>(whole(1, model.Degree[k]));
    for (std::size_t i = different; i < values.size(); ++i) values[i] = values[i % different];
  }

  void chooseCentre(JudgedProblem& made, Long k, double middle, double half) {
    Dimension& model = made.model;
    switch (whole(0, 3)) {
      case 0: model.Centre[k] = 0.0; break;
      case 1:
        made.centres[k] = CentreFrom::Middle;
        model.Centre[k] = (model.UpperLimit[k] + model.LowerLimit[k]) / 2;
        break;
      case 2: model.Centre[k] = typed(middle + between(-3, 3) * half, 3); break;
      default: model.Centre[k] = typed(middle + between(-100, 100) * half, 4); break;
    }
  }

  void tabulateSomething(Dimension& model) {
    const double noise = whole(0, 2) == 0 ? 0.0 : std::pow(10, whole(-12, 0));
    const int digits = static_cast<int>(whole(4, 17));
    const double size = std::pow(10, whole(-4, 6)), slope = between(-2, 2), bend = between(-2, 2);
    const PerVariable<double> middle = middles(model);
    tabulate(model, [&](double x, double y, double z, double) {
      const double u = x - middle[0], v = y - middle[1], w = z - middle[2];
      const double value = 1 + slope * u + bend * u * v + std::sin(bend * v) - slope * w * w + noise * between(-1, 1);
      return digits > 16 ? size * value : typed(size * value, digits);
    });
  }

  static PerVariable<double> middles(const Dimension& model) {
    PerVariable<double> middle{};
    for (Long k = 0; k <= model.LastVar; ++k) middle[k] = (model.LowerLimit[k] + model.UpperLimit[k]) / 2;
    return middle;
  }

  std::mt19937_64& random_;
};

double logDistance(const Pair& value, const mpq_class& exact) { return log10Of(exactly(value) - exact); }

void judgeSums(const PreciseFit& fit, const ExactFit& exact, Honesty& honesty) {
  const mpq_class points(static_cast<unsigned long>(fit.points));
  const auto judge = [&](const Bounded& sum, const mpq_class& value) {
    honesty.mostErrorOverBound =
        std::max(honesty.mostErrorOverBound, logDistance(sum.value, value) - std::log10(sum.bound));
  };
  if (exact.sumOfSquares == 0) return;
  judge(fit.residualSum, exact.residualSum);
  judge(fit.mean, exact.sum / points);
  judge(fit.totalSum, exact.sumOfSquares - exact.sum * exact.sum / points);
}

void judgeCoefficient(const PreciseCoefficient& coefficient, double listed, bool isListed, const mpq_class& exact,
                      Honesty& honesty) {
  ++honesty.coefficients;
  const double error = logDistance(coefficient.solution.value, exact);
  honesty.mostErrorOverBound = std::max(honesty.mostErrorOverBound, error - std::log10(coefficient.solution.bound));
  if (isListed) {
    const double claimed = rightDigits(listed, coefficient.solution);
    if (claimed > 0)
      honesty.mostClaimedTooHigh = std::max(honesty.mostClaimedTooHigh, claimed - trueDigits(listed, exact));
  }
  if (coefficient.isNoise())
    ++honesty.noise;
  else
    honesty.fewestDigits = std::min(honesty.fewestDigits, log10Of(exact) - error);
}

// With a comma behind each thousand.
std::string grouped(std::size_t count) {
  std::string text = std::to_string(count);
  for (std::size_t n = text.size(); n > 3;) text.insert(n -= 3, ",");
  return text;
}

std::string oneDecimal(double value) {
  const double tenths = std::round(10 * value);
  const std::string sign = tenths < 0 ? "-" : "";
  const long whole = std::lround(std::fabs(tenths));
  return sign + std::to_string(whole / 10) + "." + std::to_string(whole % 10);
}

}  // namespace

JudgedProblem randomJudgedProblem(std::mt19937_64& random) { return Maker(random).problem(); }

void Honesty::add(const Honesty& other) {
  problems += other.problems;
  singular += other.singular;
  notCertified += other.notCertified;
  coefficients += other.coefficients;
  noise += other.noise;
  wrongVerdicts += other.wrongVerdicts;
  mostClaimedTooHigh = std::max(mostClaimedTooHigh, other.mostClaimedTooHigh);
  mostErrorOverBound = std::max(mostErrorOverBound, other.mostErrorOverBound);
  fewestDigits = std::min(fewestDigits, other.fewestDigits);
}

std::vector<std::pair<std::string, std::string>> rowsOf(const Honesty& honesty) {
  return {{"problems, thereof singular", grouped(honesty.problems) + ", " + grouped(honesty.singular)},
          {"wrong verdicts on singularity", grouped(honesty.wrongVerdicts)},
          {"not certified", grouped(honesty.notCertified)},
          {"coefficients compared, thereof noise", grouped(honesty.coefficients) + ", " + grouped(honesty.noise)},
          {"most that claimed right digits were above the true ones", oneDecimal(honesty.mostClaimedTooHigh)},
          {"largest error over its bound", "10^" + oneDecimal(honesty.mostErrorOverBound)},
          {"fewest true digits of a precise coefficient that is no noise", oneDecimal(honesty.fewestDigits)}};
}

Honesty judged(JudgedProblem problem) {
  Honesty honesty;
  honesty.problems = 1;
  compute(problem.model);
  const ProblemData data = problemData(problem.model, problem.reading, problem.centres);
  const PreciseFit fit = preciseFit(decompose(data), centresOf(data));
  const auto exact = exactFit(exactData(problem.model, problem.reading, problem.centres));
  if (!exact) ++honesty.singular;
  if (!exact != (fit.finding.verdict == Verdict::NotDetermined)) ++honesty.wrongVerdicts;
  if (fit.finding.verdict == Verdict::NotCertified) ++honesty.notCertified;
  if (!exact || fit.finding.verdict != Verdict::Exact) return honesty;
  judgeSums(fit, *exact, honesty);
  for (std::size_t n = 0; n < fit.termCount(); ++n)
    judgeCoefficient(fit.coefficients[n], problem.model.FitDone ? problem.model.Coef.data()[n] : 0.0,
                     problem.model.FitDone, exact->coefficients[n], honesty);
  return honesty;
}

}  // namespace tavimor::test
