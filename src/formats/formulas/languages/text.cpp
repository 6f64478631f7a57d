#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"
#include "formats/formulas/terms.h"

namespace tavimor {

namespace {

std::string withoutPointZero(std::string number) {
  if (number.ends_with(".0")) number.resize(number.size() - 2);
  return number;
}

std::string numberOf(double value) { return withoutPointZero(decimalLiteral(value)); }

std::string base(const FormulaVariable& variable, const std::string& name) {
  if (variable.centre == 0.0) return name;
  const bool below = variable.centre < 0.0;
  return "(" + name + (below ? " + " : " - ") + numberOf(below ? -variable.centre : variable.centre) + ")";
}

std::string factors(const Formula& formula, const ProgramNames& names, const Term& term) {
  std::string text;
  for (Long k = 0; k <= formula.last(); ++k) {
    if (term.powers[k] == 0) continue;
    text += "*" + base(formula.variables[k], names.x[k]);
    if (term.powers[k] > 1) text += "^" + std::to_string(term.powers[k]);
  }
  return text;
}

}  // namespace

std::string textFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, {});
  std::string result = text(remarks(formula, names, {})) + "\n" + names.function + "(" + names.arguments() + ") =\n";
  bool isFirst = true;
  for (const Term& term : termsOf(formula)) {
    const bool below = term.coefficient < 0.0;
    const std::string sign = below ? "- " : isFirst ? "  " : "+ ";
    result +=
        "  " + sign + numberOf(below ? -term.coefficient : term.coefficient) + factors(formula, names, term) + "\n";
    isFirst = false;
  }
  return result;
}

}  // namespace tavimor
