// Prints the tables of docs/numerics.md, the digits that fits reach, beside how ill-conditioned they are; then the rows
// of the manual on ill-conditioned fits.
//   bench-accuracy
#include <cstdio>
#include <optional>

#include "support/condition_number.h"
#include "support/example.h"
#include "support/ill_conditioned_fits.h"
#include "support/known_fits.h"

namespace {

using namespace tavimor;
using namespace tavimor::test;

constexpr long double kWorstTold = 1e17L;    // a worse condition number is rounding of the longest arithmetic itself
constexpr long double kWorstSolved = 1e14L;  // up to here the longest arithmetic keeps more digits than a double has

std::string formatted(const char* format, double value) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string digitsText(std::optional<double> digits) { return digits ? formatted("%.1f", *digits) : "-"; }

// A NaN is none of the numbers that can be told either.
std::string conditionText(long double condition) {
  if (!(condition <= kWorstTold)) return "> 1E+17";
  return formatted("%.1E", static_cast<double>(condition));
}

void printRow(const std::vector<std::string>& cells) {
  for (const std::string& cell : cells) std::printf("| %s ", cell.c_str());
  std::printf("|\n");
}

void printHead(const std::vector<std::string>& cells) {
  printRow(cells);
  printRow(std::vector<std::string>(cells.size(), "---"));
}

std::optional<double> digitsOfCoefficients(const Dimension& model, const std::string& table) {
  if (table.empty()) return std::nullopt;
  return worstDigits(model, knownAboutTheCentresOf(model, table));
}

std::optional<double> digitsOfResidualSum(const Dimension& model, const std::string& table) {
  if (table.empty()) return std::nullopt;
  const auto certified = certifiedResidualSum(model, table);
  if (!certified) return std::nullopt;
  return agreeingDigits(model.SumRes2, *certified);
}

// The error of the worst fitted value beside the greatest one: what a plot would show.
double digitsOfFittedValues(const Table4& fitted, const Table4& wanted) {
  double error = 0.0, greatest = 0.0;
  for (std::size_t n = 0; n < wanted.size(); ++n) {
    error = std::max(error, std::fabs(fitted.data()[n] - wanted.data()[n]));
    greatest = std::max(greatest, std::fabs(wanted.data()[n]));
  }
  return agreeingDigits(greatest + error, greatest);
}

Table4 fittedInLongerArithmetic(const Dimension& model) {
  const Coefficients solution = solutionOfTheFullSystem(model);
  Table4 fitted;
  fitted.redim(model.LastPoint);
  for (const auto& i : allIndices(model.LastPoint)) {
    long double sum = 0;
    for (const auto& [j, coefficient] : solution) sum += coefficient * term(model, j, gridPoint(model, i));
    fitted(i[0], i[1], i[2], i[3]) = static_cast<double>(sum);
  }
  return fitted;
}

std::optional<double> digitsBesideLongerArithmetic(const Dimension& model, long double condition) {
  if (!(condition <= kWorstSolved)) return std::nullopt;
  return digitsOfFittedValues(model.FitGrid, fittedInLongerArithmetic(model));
}

void printExample(const KnownFit& fit) {
  Example example(fit.example);
  example.fit(fit.centres);
  const Dimension& model = example.model;
  const long double condition = conditionNumber(model);
  std::vector<std::string> row = firstCells(fit);
  row.insert(
      row.end(),
      {std::to_string(model.Coef.size()), conditionText(condition), digitsText(digitsOfCoefficients(model, fit.table)),
       digitsText(digitsOfResidualSum(model, fit.table)), digitsText(digitsBesideLongerArithmetic(model, condition))});
  printRow(row);
}

void printExamples() {
  printHead(
      {"problem", "centre", "terms", "condition", "known coefficients", "certified sum of squares", "fitted values"});
  for (const KnownFit& fit : knownFits()) printExample(fit);
  printExample({"", "silicon-index", "", {"*", "*"}});
  printExample({"", "offset-print", "", {"*", "*", "*", "*"}});
}

// Equally spaced values that are exact in binary, so that only the fit rounds.
constexpr int kValues = 33;
constexpr Long kHighestDegree = 12;

// The sum of all powers about the centre: every coefficient is 1.
Dimension sumOfPowers(double lower, double upper, double centre, Long degree) {
  Dimension model = problem({{"x", spaced(lower, upper, kValues), degree, centre}});
  tabulate(model, [&](double x, double, double, double) {
    long double sum = 0;
    for (Long j = 0; j <= degree; ++j) sum += power(static_cast<long double>(x) - centre, j);
    return static_cast<double>(sum);
  });
  return model;
}

double digitsOfOnes(const Dimension& model) {
  Coefficients ones;
  for (const auto& j : allIndices(model.Degree)) ones[j] = 1;
  return worstDigits(model, ones);
}

std::vector<std::string> conditioningCells(double lower, double upper, double centre, Long degree) {
  Dimension model = sumOfPowers(lower, upper, centre, degree);
  const std::string condition = conditionText(conditionNumber(model));
  compute(model);
  if (!model.FitDone) return {condition, "-", "-"};
  return {condition, digitsText(digitsOfOnes(model)), digitsText(digitsOfFittedValues(model.FitGrid, model.F))};
}

void printConditioning(double lower, double upper, const std::vector<double>& centres) {
  std::printf("\nInterval [%g, %g]:\n\n", lower, upper);
  std::vector<std::string> head = {"degree"};
  for (const double centre : centres) {
    head.push_back(formatted("centre %g: condition", centre));
    head.insert(head.end(), {"coefficients", "fitted values"});
  }
  printHead(head);
  for (Long degree = 1; degree <= kHighestDegree; ++degree) {
    std::vector<std::string> row = {std::to_string(degree)};
    for (const double centre : centres)
      for (const std::string& cell : conditioningCells(lower, upper, centre, degree)) row.push_back(cell);
    printRow(row);
  }
}

void printManual() {
  std::printf("\nThe manual on ill-conditioned fits:\n\n");
  for (const std::string& row : rowsOfIllConditionedFits()) std::printf("%s\n", row.c_str());
  std::printf("\nThe correlation of nine values 0.1: %s\n", shortText(correlationOfEqualValues()).c_str());
}

}  // namespace

int main() {
  printExamples();
  printConditioning(-1, 1, {0, -1});
  printConditioning(0, 1, {0.5, 0});
  printConditioning(100, 101, {100.5, 100, 0});
  printManual();
}
