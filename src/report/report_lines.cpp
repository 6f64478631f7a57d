#include "report/report_lines.h"

#include "model/value_lists.h"
#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kFunctionColumn = 40;
constexpr std::size_t kLinePadding = 70;

std::string valueText(Dimension& model, Long v, Long i) {
  GetVarX(model, v, i);
  return model.VarName[v] + "=" + numberText(model.VarX);
}

std::string dataLine(Dimension& model, Long i0, Long i1, Long i2, Long i3) {
  const std::string line = "   " + valueText(model, 0, i0) + std::string(kLinePadding, ' ');
  return overlaid(line, kFunctionColumn, "FUNCTION=" + numberText(model.F(i0, i1, i2, i3)));
}

void firstVariableLines(Dimension& model, Long i1, Long i2, Long i3, const LineSink& print) {
  for (Long i0 = 0; i0 <= model.LastPoint[0]; ++i0) print(dataLine(model, i0, i1, i2, i3));
  print("");
}

void secondVariableLines(Dimension& model, Long i2, Long i3, const LineSink& print) {
  for (Long i1 = 0; i1 <= model.LastPoint[1]; ++i1) {
    if (model.LastPoint[1] != 0) print("  " + valueText(model, 1, i1));
    firstVariableLines(model, i1, i2, i3, print);
  }
  print("");
}

void resultLines(Dimension& model, const LineSink& print) {
  statisticsLines(model, print);
  print("");
  print("COEFFICIENTS:");
  print("");
  coefficientLines(model, print);
}

}  // namespace

void variableLines(const Dimension& model, Long k, const LineSink& print) {
  print("");
  print("           VARIABLE: " + model.VarName[k]);
  print("             DEGREE:" + printedNumber(model.Degree[k]));
  print("        # OF POINTS:" + printedNumber(addLongs(model.LastPoint[k], 1)));
  print("           INTERVAL: [" + printedNumber(model.LowerLimit[k]) + "," + printedNumber(model.UpperLimit[k]) + "]");
  print("CENTER OF EXPANSION:" + printedNumber(model.Centre[k]));
}

void dataLines(Dimension& model, const LineSink& print) {
  print("");
  print("DATA:");
  print("");
  const Long lastOfFourth = model.LastPoint[3];
  for (Long i3 = 0; i3 <= lastOfFourth; ++i3) {
    if (lastOfFourth != 0) print(valueText(model, 3, i3));
    for (Long i2 = 0; i2 <= lastOfFourth; ++i2) {
      if (lastOfFourth != 0) print(" " + valueText(model, 2, i2));
      secondVariableLines(model, i2, i3, print);
    }
    print("");
  }
}

void reportLines(Dimension& model, const LineSink& print) {
  for (Long k = 0; k <= model.LastVar; ++k) variableLines(model, k, print);
  if (model.FitDone) resultLines(model, print);
  dataLines(model, print);
}

}  // namespace tavimor
