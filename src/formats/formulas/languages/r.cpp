#include "formats/formulas/horner_loops.h"
#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "if else repeat while function for next break TRUE FALSE NULL Inf NaN NA in T F abs array c cat max matrix quit "
    "return sprintf sum sys ifelse differences wrong ncol byrow";

const LanguageNotes kNotes = {
    .bits = {"It takes vectors and gives the bits of the Evaluations window. The numbers stand in",
             "hexadecimal form, since R rounds decimal ones in its own way."},
    .check = {"To check it: Rscript FILE.R", "That ends with 0 where no point differs by more than rounding."}};

LoopSyntax loops(const ProgramNames& names) {
  const auto assign = [](const std::string& name, const std::string& value) { return name + " <- " + value; };
  return {.declare = assign,
          .assign = assign,
          .open = [](const std::string& power,
                     Long degree) { return "for (" + power + " in " + std::to_string(degree + 1) + ":1) {"; },
          .close = "}",
          .literal = hexadecimalLiteral,
          .coefficient = [&](const Lines& j) { return names.coef + "[" + firstOutermost(j) + "]"; }};
}

std::string table(const Formula& formula, const ProgramNames& names) {
  Lines sizes;
  for (Long k = 0; k <= formula.last(); ++k) sizes.push_back(std::to_string(formula.Coef.extent(k)));
  return names.coef + " <- array(c(\n" + text(wrapped(literals(formula.Coef, hexadecimalLiteral), "  ")) +
         "), dim = c(" + joined(sizes, ", ") + "))\n";
}

std::string function(const Formula& formula, const ProgramNames& names) {
  const std::string& value = names.s[formula.last()];
  std::string code = "\n" + names.function + " <- function(" + names.arguments() + ") {\n";
  code += text(hornerLoops(formula, names, loops(names), "  "));
  if (formula.outside == Outside::NotANumber)
    return code + "  ifelse(" + joined(insideTests(formula, names.x, hexadecimalLiteral), " & ") + ", " + value +
           ", NaN)\n}\n";
  return code + "  " + value + "\n}\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  const std::string count = std::to_string(formula.checks.size());
  const std::string row = std::to_string(formula.last() + 3);
  const auto item = [&](Long column) { return names.points + "[, " + std::to_string(column) + "]"; };
  Lines arguments;
  for (Long k = 0; k <= formula.last(); ++k) arguments.push_back(item(k + 1));
  return "\nif (sys.nframe() == 0L) {\n  # each row: the variables, the value, the bound of rounding\n  " +
         names.points + " <- matrix(c(\n" + text(wrapped(rowsOf(formula, hexadecimalLiteral), "    ")) +
         "  ), ncol = " + row + ", byrow = TRUE)\n  differences <- abs(" + names.function + "(" +
         joined(arguments, ", ") + ") - " + item(formula.last() + 2) +
         ")\n  wrong <- sum(!(differences <= " + item(formula.last() + 3) + "))\n  cat(sprintf(\"" + count +
         " points, largest difference %.3g, beyond rounding: %d\\n\", max(differences), wrong))\n"
         "  quit(status = if (wrong == 0) 0L else 1L)\n}\n";
}

}  // namespace

std::string rFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, kReserved);
  const std::string code =
      text(remarks(formula, names, kNotes), "# ") + "\n" + table(formula, names) + function(formula, names);
  return formula.checks.empty() ? code : code + check(formula, names);
}

}  // namespace tavimor
