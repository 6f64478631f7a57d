#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"
#include "model/value_lists.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "abs acos acosh airy arg asin asinh atan atan2 atanh besi0 besi1 besj0 besj1 besjn besy0 besy1 besyn besin ceil "
    "column columnhead cos cosh defined e erf erfc exists exp expint EllipticE EllipticK EllipticPi floor gamma "
    "gprintf hsv2rgb ibeta igamma imag int inverf invnorm lambertw lgamma lnGamma log log10 NaN norm palette pi "
    "rand real rgbcolor round sgn sin sinh split sprintf sqrt stringcolumn strftime strlen strptime strstrt substr "
    "sum system tan tanh time timecolumn tm_hour trim uigamma valid value voigt VP word words zeta if else do for "
    "while in check largest wrong difference section surface";

LanguageNotes notes() {
  return {.bits = {"It gives the bits of the Evaluations window."},
          .check = {"To see it: gnuplot -p FILE.gp. To check it: gnuplot -e \"check=1\" FILE.gp",
                    "That ends with 0 where no point differs by more than rounding."}};
}

// Horner's scheme, written out: the sums of a level are functions, which those of the next level call.
class Levels {
 public:
  Levels(const Formula& formula, const ProgramNames& names) : formula_(formula), names_(names) {}

  // The functions of level k for the given powers of the outer variables, innermost first.
  void define(Long k, const std::string& outerPowers, const double* first, std::string& code) const {
    const Table4& Coef = formula_.Coef;
    Lines inner;
    for (std::size_t j = 0; j < Coef.extent(k); ++j) {
      const double* part = first + j * Coef.stride(k);
      const std::string powers = outerPowers + "_" + std::to_string(j);
      if (k > 0) define(k - 1, powers, part, code);
      inner.push_back(k == 0 ? literalInBrackets(*part) : call(powers, k - 1));
    }
    code += call(outerPowers, k) + " = " + horner(inner, names_.t[k]) + "\n";
  }

  // The sum over the first variables for some powers of the others.
  std::string call(const std::string& powers, Long k) const {
    return names_.function + "_sum" + powers + "(" + joined({names_.t.begin(), names_.t.begin() + k + 1}, ", ") + ")";
  }

 private:
  static std::string literalInBrackets(double value) {
    const std::string literal = decimalLiteral(value);
    return literal.starts_with('-') ? "(" + literal + ")" : literal;
  }

  static std::string horner(const Lines& inner, const std::string& t) {
    std::string text = inner.back();
    for (std::size_t j = inner.size() - 1; j-- > 0;)
      text = (j + 2 == inner.size() ? text : "(" + text + ")") + " * " + t + " + " + inner[j];
    return text;
  }

  const Formula& formula_;
  const ProgramNames& names_;
};

std::string function(const Formula& formula, const ProgramNames& names) {
  const Levels levels(formula, names);
  std::string code;
  levels.define(formula.last(), "", formula.Coef.data(), code);
  Lines offsets;
  for (Long k = 0; k <= formula.last(); ++k)
    offsets.push_back(offset(names.x[k], decimalLiteral(formula.variables[k].centre)));
  std::string value = names.function + "_sum(" + joined(offsets, ", ") + ")";
  if (formula.outside == Outside::NotANumber)
    value = "(" + joined(insideTests(formula, names.x, decimalLiteral), " && ") + ") ? " + value + " : NaN";
  return code + names.function + "(" + names.arguments() + ") = " + value + "\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  std::string code = "\nif (exists(\"check\")) {\n  largest = 0.0\n  wrong = 0\n";
  for (const CheckPoint& point : formula.checks) {
    Lines row = rowOf(formula, point, decimalLiteral);
    const std::string bound = row.back();
    row.pop_back();
    const std::string value = row.back();
    row.pop_back();
    code += "  difference = abs(" + offset(names.function + "(" + joined(row, ", ") + ")", value) +
            "); if (difference > largest) { largest = difference }; if (!(difference <= " + bound +
            ")) { wrong = wrong + 1 }\n";
  }
  return code + "  print sprintf(\"" + std::to_string(formula.checks.size()) +
         " points, largest difference %.3g, beyond rounding: %d\", largest, wrong)\n  exit status (wrong == 0 ? 0 : "
         "1)\n}\n";
}

std::string title(const std::string& name) {
  std::string text = "'";
  for (const char c : name) text += c == '\'' ? "''" : std::string(1, c);
  return text + "'";
}

PerVariable<Long> middleOfGrid(const Problem& problem) {
  PerVariable<Long> middle{};
  for (Long k = 0; k <= problem.LastVar; ++k) middle[k] = problem.LastPoint[k] / 2;
  return middle;
}

// The function's arguments with the first `free` variables running and the others at the middle of the grid.
std::string atMiddle(const Problem& problem, Long free) {
  const Lines running = {"x", "y"};
  const PerVariable<Long> middle = middleOfGrid(problem);
  Lines arguments;
  for (Long k = 0; k <= problem.LastVar; ++k)
    arguments.push_back(k < free ? running[k] : decimalLiteral(valueOf(problem, k, middle[k])));
  return joined(arguments, ", ");
}

std::string dataLine(const Problem& problem, const PerVariable<Long>& index, Long free) {
  Lines cells;
  for (Long k = 0; k < free; ++k) cells.push_back(decimalLiteral(valueOf(problem, k, index[k])));
  cells.push_back(decimalLiteral(problem.F(index)));
  return joined(cells, " ") + "\n";
}

std::string range(const FormulaVariable& variable) {
  return "[" + decimalLiteral(variable.lower) + ":" + decimalLiteral(variable.upper) + "]";
}

std::string section(const Formula& formula, const ProgramNames& names, const Problem& problem) {
  PerVariable<Long> index = middleOfGrid(problem);
  std::string code = "\n$section << END\n";
  for (index[0] = 0; index[0] <= problem.LastPoint[0]; ++index[0]) code += dataLine(problem, index, 1);
  return code + "END\nset xlabel " + title(names.x[0]) + " noenhanced\nplot " + range(formula.variables[0]) + " " +
         names.function + "(" + atMiddle(problem, 1) + ") title 'fit', $section using 1:2 with points title 'given'\n";
}

std::string surface(const Formula& formula, const ProgramNames& names, const Problem& problem) {
  PerVariable<Long> index = middleOfGrid(problem);
  std::string code = "\n$surface << END\n";
  for (index[0] = 0; index[0] <= problem.LastPoint[0]; ++index[0]) {
    for (index[1] = 0; index[1] <= problem.LastPoint[1]; ++index[1]) code += dataLine(problem, index, 2);
    code += "\n";
  }
  return code + "END\nset xlabel " + title(names.x[0]) + " noenhanced\nset ylabel " + title(names.x[1]) +
         " noenhanced\nsplot " + range(formula.variables[0]) + range(formula.variables[1]) + " " + names.function +
         "(" + atMiddle(problem, 2) + ") title 'fit', $surface using 1:2:3 with points title 'given'\n";
}

std::string plots(const Formula& formula, const ProgramNames& names, const Problem& problem) {
  if (formula.last() == 0) return section(formula, names, problem);
  return "\nset multiplot layout 2, 1\n" + section(formula, names, problem) + surface(formula, names, problem) +
         "unset multiplot\n";
}

}  // namespace

std::string gnuplotFormula(const Formula& formula, const Problem& problem) {
  const ProgramNames names = programNames(formula, kReserved);
  std::string code = text(remarks(formula, names, notes()), "# ") + "\n" + function(formula, names);
  if (!formula.checks.empty()) code += check(formula, names);
  return code + plots(formula, names, problem);
}

}  // namespace tavimor
