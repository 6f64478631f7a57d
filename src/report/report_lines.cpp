#include "report/report_lines.h"

#include "model/value_lists.h"
#include "report/listing.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kFunctionColumn = 40;
constexpr std::size_t kLinePadding = 70;

std::string valueText(const Problem& problem, Long v, Long i) {
  return problem.VarName[v] + "=" + numberText(valueOf(problem, v, i));
}

std::string dataLine(const Problem& problem, Long i0, Long i1, Long i2, Long i3) {
  const std::string line = "   " + valueText(problem, 0, i0) + std::string(kLinePadding, ' ');
  return overlaid(line, kFunctionColumn, "FUNCTION=" + numberText(problem.F(i0, i1, i2, i3)));
}

void firstVariableLines(const Problem& problem, Long i1, Long i2, Long i3, const LineSink& print) {
  for (Long i0 = 0; i0 <= problem.LastPoint[0]; ++i0) print(dataLine(problem, i0, i1, i2, i3));
  print("");
}

void secondVariableLines(const Problem& problem, Long i2, Long i3, const LineSink& print) {
  for (Long i1 = 0; i1 <= problem.LastPoint[1]; ++i1) {
    if (problem.LastPoint[1] != 0) print("  " + valueText(problem, 1, i1));
    firstVariableLines(problem, i1, i2, i3, print);
  }
  print("");
}

void resultLines(const Problem& problem, const Fit& fit, const LineSink& print) {
  statisticsLines(fit, print);
  print("");
  print("COEFFICIENTS:");
  print("");
  coefficientLines(problem, fit.Coef, print);
}

}  // namespace

void variableLines(const Problem& problem, Long k, const LineSink& print) {
  print("");
  print("           VARIABLE: " + problem.VarName[k]);
  print("             DEGREE:" + printedNumber(problem.Degree[k]));
  print("        # OF POINTS:" + printedNumber(addLongs(problem.LastPoint[k], 1)));
  print("           INTERVAL: [" + printedNumber(problem.LowerLimit[k]) + "," + printedNumber(problem.UpperLimit[k]) +
        "]");
  print("CENTER OF EXPANSION:" + printedNumber(problem.Centre[k]));
}

void dataLines(const Problem& problem, const LineSink& print) {
  print("");
  print("DATA:");
  print("");
  const Long lastOfFourth = problem.LastPoint[3];
  for (Long i3 = 0; i3 <= lastOfFourth; ++i3) {
    if (lastOfFourth != 0) print(valueText(problem, 3, i3));
    for (Long i2 = 0; i2 <= lastOfFourth; ++i2) {
      if (lastOfFourth != 0) print(" " + valueText(problem, 2, i2));
      secondVariableLines(problem, i2, i3, print);
    }
    print("");
  }
}

void reportLines(const Problem& problem, const Fit& fit, const LineSink& print) {
  for (Long k = 0; k <= problem.LastVar; ++k) variableLines(problem, k, print);
  if (fit.FitDone) resultLines(problem, fit, print);
  dataLines(problem, print);
}

}  // namespace tavimor
