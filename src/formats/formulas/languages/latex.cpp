#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"
#include "formats/formulas/terms.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kTermsALine = 2;

std::string escaped(std::string_view character) {
  if (character.size() > 1) return std::string(character);
  switch (character.front()) {
    case '\\': return "\\textbackslash{}";
    case '^': return "\\textasciicircum{}";
    case '~': return "\\textasciitilde{}";
    case '&':
    case '%':
    case '$':
    case '#':
    case '_':
    case '{':
    case '}': return "\\" + std::string(character);
    default: return std::string(character);
  }
}

// Greek letters are spelt: the plain fonts have them in formulas only.
std::string asText(const std::string& name) {
  std::string text;
  for (std::string_view rest = name; !rest.empty();) {
    const std::string_view character = firstCharacters(rest, 1);
    text += escaped(character);
    rest.remove_prefix(character.size());
  }
  return text;
}

std::string number(double value) {
  std::string text = decimalLiteral(value);
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  const std::size_t exponent = text.find('e');
  if (exponent == std::string::npos) return text;
  return text.substr(0, exponent) + "\\times 10^{" + std::to_string(std::stoi(text.substr(exponent + 1))) + "}";
}

std::string symbol(const std::string& name) { return name.size() == 1 ? name : "\\mathrm{" + asText(name) + "}"; }

std::string factor(const FormulaVariable& variable, const std::string& name, Long power) {
  const bool below = variable.centre < 0.0;
  std::string text = "\\," + symbol(name);
  if (variable.centre != 0.0)
    text = "\\,(" + symbol(name) + (below ? " + " : " - ") + number(below ? -variable.centre : variable.centre) + ")";
  return power > 1 ? text + "^{" + std::to_string(power) + "}" : text;
}

std::string factors(const Formula& formula, const ProgramNames& names, const Term& term) {
  std::string text;
  for (Long k = 0; k <= formula.last(); ++k)
    if (term.powers[k] > 0) text += factor(formula.variables[k], names.x[k], term.powers[k]);
  return text;
}

std::string equation(const Formula& formula, const ProgramNames& names) {
  Lines arguments;
  for (const std::string& name : names.x) arguments.push_back(symbol(name));
  std::string text = "\\begin{align*}\n  " + symbol(names.function) + "(" + joined(arguments, ", ") + ") ={}&";
  std::size_t count = 0;
  for (const Term& term : termsOf(formula)) {
    if (count > 0 && count % kTermsALine == 0) text += " \\\\\n    &";
    const bool below = term.coefficient < 0.0;
    text += (below       ? " - "
             : count > 0 ? " + "
                         : " ") +
            number(below ? -term.coefficient : term.coefficient) + factors(formula, names, term);
    ++count;
  }
  return text + "\n\\end{align*}\n";
}

std::string tableOfTerms(const Formula& formula, const ProgramNames& names) {
  const auto columns = static_cast<std::size_t>(formula.last()) + 1;
  Lines heads;
  for (const std::string& name : names.x) heads.push_back("$" + symbol(name) + "$");
  std::string text = "\\begin{longtable}{" + std::string(columns, 'r') + "l}\n  " + joined(heads, " & ") +
                     " & coefficient \\\\\n  \\hline\n  \\endhead\n";
  for (const Term& term : termsOf(formula)) {
    Lines cells;
    for (Long k = 0; k <= formula.last(); ++k) cells.push_back(std::to_string(term.powers[k]));
    text += "  " + joined(cells, " & ") + " & $" + number(term.coefficient) + "$ \\\\\n";
  }
  return text + "\\end{longtable}\n";
}

}  // namespace

std::string latexFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, {});
  return text(remarks(formula, names, {}), "% ") +
         "\n\\documentclass{article}\n\\usepackage{amsmath}\n\\usepackage{longtable}\n\\begin{document}\n\n"
         "% the formula\n" +
         equation(formula, names) + "\n% the powers of the variables about their centres, and their coefficients\n" +
         tableOfTerms(formula, names) + "\n\\end{document}\n";
}

}  // namespace tavimor
