#include "report/results_text.h"

#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kTermColumn = 25;
constexpr std::size_t kLinePadding = 255;

std::string frequencyText(Long index) {
  const std::string wave = index % 2 == 0 ? "cos(" : "sin(";
  const bool isBaseFrequency = index == 1 || index == 2;
  return isBaseFrequency ? wave : wave + numberText((index + 1) / 2) + "*";
}

std::string offsetText(double centre) {
  if (centre > 0) return "-" + numberText(centre) + ")";
  if (centre < 0) return "+" + numberText(centre).substr(1) + ")";
  return "";
}

std::string factorText(const Dimension& model, int k, Long index) {
  const bool trigonometric = !model.PeriodFlag[k];
  const bool baseFrequency = trigonometric && (index == 1 || index == 2);
  const bool atZero = model.Centre[k] == 0.0;
  std::string text = "*";
  if (trigonometric) text += frequencyText(index);
  if (!atZero && !baseFrequency) text += "(";
  text += model.VarName[k];
  if (!atZero)
    text += offsetText(model.Centre[k]);
  else if (model.TrigFlag[k])
    text += ")";
  if (!trigonometric && index > 1) text += "^" + numberText(index);
  if (model.TrigFlag[k] && !atZero && index > 2) text += ")";
  return text;
}

}  // namespace

std::string termText(const Dimension& model) {
  const PerVariable<Long> index = {model.I0, model.I1, model.I2, model.I3};
  std::string text;
  for (int k = 0; k <= model.LastVar; ++k)
    if (index[k] != 0) text += factorText(model, k, index[k]);
  return text;
}

std::string BuildCoefficientLine(const Dimension& model) {
  const double coefficient = model.Coef(model.I0, model.I1, model.I2, model.I3);
  return overlaid(numberText(coefficient) + std::string(kLinePadding, ' '), kTermColumn, termText(model));
}

void statisticsLines(const Dimension& model, const LineSink& addItem) {
  addItem("              CORRELATION COEFFICIENT=" + numberText(model.CorrCoef));
  addItem("STANDARD ERROR OF ESTIMATE (UNBIASED)=" + numberText(model.StdErr));
  addItem("                    SUM (RESIDUALS)^2=" + numberText(model.SumRes2));
  addItem("           AVERAGE OF FUNCTION(GIVEN)=" + numberText(model.AvgGiven));
  addItem("       AVERAGE OF FUNCTION(ESTIMATED)=" + numberText(model.AvgEstimated));
}

void coefficientLines(Dimension& model, const LineSink& addItem) {
  for (Long i3 = 0; i3 <= model.Degree[3]; ++i3) {
    model.I3 = i3;
    for (Long i2 = 0; i2 <= model.Degree[2]; ++i2) {
      model.I2 = i2;
      for (Long i1 = 0; i1 <= model.Degree[1]; ++i1) {
        model.I1 = i1;
        for (Long i0 = 0; i0 <= model.Degree[0]; ++i0) {
          model.I0 = i0;
          addItem(BuildCoefficientLine(model));
        }
        addItem("");
      }
      addItem("");
    }
    addItem("");
  }
}

void ShowResults(Dimension& model, const LineSink& addItem) {
  statisticsLines(model, addItem);
  addItem("");
  addItem("COEFFICIENTS:");
  coefficientLines(model, addItem);
}

}  // namespace tavimor
