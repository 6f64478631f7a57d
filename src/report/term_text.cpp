#include "report/term_text.h"

#include "runtime/number_text.h"

namespace tavimor {

namespace {

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

std::string factorText(const Problem& problem, int k, Long index) {
  const bool trigonometric = !problem.PeriodFlag[k];
  const bool baseFrequency = trigonometric && (index == 1 || index == 2);
  const bool atZero = problem.Centre[k] == 0.0;
  std::string text = "*";
  if (trigonometric) text += frequencyText(index);
  if (!atZero && !baseFrequency) text += "(";
  text += problem.VarName[k];
  if (!atZero)
    text += offsetText(problem.Centre[k]);
  else if (problem.TrigFlag[k])
    text += ")";
  if (!trigonometric && index > 1) text += "^" + numberText(index);
  if (problem.TrigFlag[k] && !atZero && index > 2) text += ")";
  return text;
}

}  // namespace

std::string termText(const Problem& problem, const PerVariable<Long>& index) {
  std::string text;
  for (int k = 0; k <= problem.LastVar; ++k)
    if (index[k] != 0) text += factorText(problem, k, index[k]);
  return text;
}

std::string plainTermText(const Problem& problem, const PerVariable<Long>& index) {
  const std::string text = termText(problem, index);
  return text.empty() ? "1" : text.substr(1);
}

}  // namespace tavimor
