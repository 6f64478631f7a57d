#include "formats/formulas/horner_loops.h"
#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "False None True and as assert async await break class continue def del elif else except finally for from "
    "global if import in is lambda nonlocal not or pass raise return try while with yield match case type abs bool "
    "isinstance len max print range sys numpy float inside differences difference wrong point";

const LanguageNotes kNotes = {
    .bits = {"It takes floats and numpy arrays alike and gives the bits of the Evaluations window."},
    .check = {"To check it: python3 FILE.py", "That ends with 0 where no point differs by more than rounding."}};

LoopSyntax loops(const ProgramNames& names) {
  const auto assign = [](const std::string& name, const std::string& value) { return name + " = " + value; };
  return {.declare = assign,
          .assign = assign,
          .open = [](const std::string& power,
                     Long degree) { return "for " + power + " in range(" + std::to_string(degree) + ", -1, -1):"; },
          .close = "",
          .literal = decimalLiteral,
          .coefficient = [&](const Lines& j) { return lastOutermost(names.coef, j); }};
}

// Lists and not tuples: a tuple of one element would need a comma of its own.
std::string table(const Formula& formula, const ProgramNames& names) {
  Lines lists = nestedLists(formula, "[", "]", decimalLiteral, "");
  lists.front() = names.coef + " = " + lists.front();
  return text(lists);
}

std::string nanOutside(const Formula& formula, const ProgramNames& names) {
  const std::string& value = names.s[formula.last()];
  return "  inside = (" + joined(insideTests(formula, names.x, decimalLiteral), ") & (") +
         ")\n  if isinstance(inside, bool):\n    return " + value +
         " if inside else float(\"nan\")\n  import numpy\n  return numpy.where(inside, " + value +
         ", float(\"nan\"))[()]\n";
}

std::string function(const Formula& formula, const ProgramNames& names) {
  const std::string code = "\n\ndef " + names.function + "(" + names.arguments() + "):\n" +
                           text(hornerLoops(formula, names, loops(names), "  "));
  if (formula.outside == Outside::NotANumber) return code + nanOutside(formula, names);
  return code + "  return " + names.s[formula.last()] + "\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  const std::string n = std::to_string(formula.last() + 1);
  std::string code = "\n\nif __name__ == \"__main__\":\n  import sys\n";
  code += "  # each row: the variables, the value, the bound of rounding\n  " + names.points + " = [\n";
  for (const CheckPoint& point : formula.checks)
    code += "    (" + joined(rowOf(formula, point, decimalLiteral), ", ") + "),\n";
  return code + "  ]\n  differences = [abs(" + names.function + "(*point[:" + n + "]) - point[" + n +
         "]) for point in " + names.points +
         "]\n  wrong = [not difference <= point[-1] for difference, point in zip(differences, " + names.points +
         ")]\n  print(\"%d points, largest difference %.3g, beyond rounding: %d\" % (len(" + names.points +
         "), max(differences), sum(wrong)))\n  sys.exit(1 if any(wrong) else 0)\n";
}

}  // namespace

std::string pythonFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, kReserved);
  const std::string code =
      text(remarks(formula, names, kNotes), "# ") + "\n" + table(formula, names) + function(formula, names);
  return formula.checks.empty() ? code : code + check(formula, names);
}

}  // namespace tavimor
