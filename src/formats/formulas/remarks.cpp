#include "formats/formulas/remarks.h"

#include "runtime/number_text.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kLongestName = 60;
constexpr std::size_t kLongestReason = 160;
constexpr Long kMostDigits = 15;
constexpr std::size_t kDigitsALine = 20;

// Harmless in every kind of comment.
std::string inOneLine(const std::string& text, std::size_t characters) {
  std::string shown = excerpt(text, characters);
  for (std::size_t at; (at = shown.find("/*")) != std::string::npos;) shown.insert(at + 1, " ");
  return shown;
}

std::string quoted(const std::string& name) { return '"' + inOneLine(name, kLongestName) + '"'; }

std::string variableLine(const FormulaVariable& variable, const std::string& name, Long degree) {
  const std::string original = variable.name == name ? "" : " is " + quoted(variable.name);
  return "  " + name + original + ": from " + numberText(variable.lower) + " to " + numberText(variable.upper) +
         ", centre " + numberText(variable.centre) + ", degree " + numberText(degree);
}

Lines statisticsOf(const Formula& formula) {
  const Statistics& figures = formula.statistics;
  return {"Statistics of the fit, on a grid of " + numberText(formula.gridPoints) + " points:",
          "  correlation coefficient       " + numberText(figures.CorrCoef),
          "  standard error of estimate    " + numberText(figures.StdErr),
          "  sum of squared residuals      " + numberText(figures.SumRes2),
          "  average of the given values   " + numberText(figures.AvgGiven),
          "  average of the estimates      " + numberText(figures.AvgEstimated)};
}

// Fifteen digits are the most that a listing shows.
Lines digitsOf(const Formula& formula) {
  const FitFigures& figures = formula.figures;
  if (!figures.doubt.empty()) return {"The data determine no fit: " + inOneLine(figures.doubt, kLongestReason) + "."};
  if (!figures.areKnown()) return {};
  const std::string when = formula.rounded ? " before rounding" : "";
  Lines lines = {"Right digits of the coefficients" + when + ", of 15: " + numberText(figures.worstDigits) +
                 " in the worst that is more than noise"};
  if (figures.worstDigits == kMostDigits) return lines;
  lines.push_back("In each of them, - for noise:");
  for (std::size_t n = 0; n < figures.digits.size(); ++n) {
    const std::string digits = figures.digits[n] ? numberText(*figures.digits[n]) : "-";
    if (n % kDigitsALine == 0)
      lines.push_back("  " + digits);
    else
      lines.back() += ", " + digits;
  }
  return lines;
}

Lines roundingOf(const RoundedBy& rounded) {
  return {
      "The coefficients are rounded so that the formula stays within " + numberText(rounded.within) + " of the fit:",
      "  nowhere between the limits is it farther off than " + numberText(rounded.bound) + ",",
      "  at a grid point by " + numberText(rounded.largestOnGrid) + " at most; " + std::to_string(rounded.dropped) +
          " terms are left out."};
}

std::string outsideOf(const Formula& formula) {
  return formula.outside == Outside::NotANumber
             ? "Where a variable is outside its interval the value is NaN."
             : "Outside these intervals the formula is no estimate: nothing was fitted there.";
}

void append(Lines& lines, const Lines& more) { lines.insert(lines.end(), more.begin(), more.end()); }

}  // namespace

Lines remarks(const Formula& formula, const ProgramNames& names, const LanguageNotes& notes) {
  Lines lines = {names.function + "(" + names.arguments() + "): a polynomial fitted by least squares", "",
                 "Variables:"};
  for (Long k = 0; k <= formula.last(); ++k)
    lines.push_back(variableLine(formula.variables[k], names.x[k], formula.Coef.last()[k]));
  lines.push_back(outsideOf(formula));
  lines.push_back("");
  append(lines, statisticsOf(formula));
  append(lines, digitsOf(formula));
  if (formula.rounded) append(lines, roundingOf(*formula.rounded));
  if (!notes.bits.empty()) lines.push_back("");
  append(lines, notes.bits);
  if (formula.checks.empty() || notes.check.empty()) return lines;
  lines.push_back("");
  append(lines, notes.check);
  return lines;
}

}  // namespace tavimor
