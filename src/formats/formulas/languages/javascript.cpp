#include "formats/formulas/horner_loops.h"
#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "abstract arguments async await boolean break byte case catch char class const continue debugger default delete "
    "do double else enum eval export extends false final finally float for function get goto if implements import "
    "in instanceof int interface let long native new null of package private protected public return set short "
    "static super switch synchronized this throw throws transient true try typeof undefined var void volatile while "
    "with yield Infinity NaN Math Number console module exports process require differences wrong window document "
    "name top self status parent length event history location";

const LanguageNotes kNotes = {
    .bits = {"It gives the bits of the Evaluations window. A page loads it as a script, node by require."},
    .check = {"To check it: node FILE.js", "That ends with 0 where no point differs by more than rounding."}};

LoopSyntax loops(const ProgramNames& names) {
  return {
      .declare = [](const std::string& name, const std::string& value) { return "let " + name + " = " + value + ";"; },
      .assign = [](const std::string& name, const std::string& value) { return name + " = " + value + ";"; },
      .open =
          [](const std::string& power, Long degree) {
            return "for (let " + power + " = " + std::to_string(degree) + "; " + power + " >= 0; --" + power + ") {";
          },
      .close = "}",
      .literal = decimalLiteral,
      .coefficient = [&](const Lines& j) { return lastOutermost(names.coef, j); }};
}

std::string function(const Formula& formula, const ProgramNames& names) {
  Lines lists = nestedLists(formula, "[", "]", decimalLiteral, "");
  lists.front() = "const " + names.coef + " = " + lists.front();
  lists.back() += ";";
  std::string code = text(lists) + "\nfunction " + names.function + "(" + names.arguments() + ") {\n";
  if (formula.outside == Outside::NotANumber)
    code += "  if (!(" + joined(insideTests(formula, names.x, decimalLiteral), " && ") + ")) return NaN;\n";
  return code + text(hornerLoops(formula, names, loops(names), "  ")) + "  return " + names.s[formula.last()] +
         ";\n}\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  const std::string n = std::to_string(formula.last() + 1);
  std::string code = "\nif (typeof module !== \"undefined\" && require.main === module) {\n";
  code += "  // each row: the variables, the value, the bound of rounding\n  const " + names.points + " = [\n";
  for (const CheckPoint& point : formula.checks)
    code += "    [" + joined(rowOf(formula, point, decimalLiteral), ", ") + "],\n";
  return code + "  ];\n  const differences = " + names.points + ".map((p) => Math.abs(" + names.function +
         "(...p.slice(0, " + n + ")) - p[" + n +
         "]));\n  const wrong = differences.filter((d, i) => !(d <= " + names.points + "[i][" +
         std::to_string(formula.last() + 2) + "])).length;\n  console.log(`${" + names.points +
         ".length} points, largest difference ${Math.max(...differences)}, beyond rounding: ${wrong}`);\n"
         "  process.exitCode = wrong === 0 ? 0 : 1;\n}\n";
}

}  // namespace

std::string javascriptFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, kReserved);
  const std::string code = text(remarks(formula, names, kNotes), "// ") + "\n" + function(formula, names) +
                           "\nif (typeof module !== \"undefined\") module.exports = " + names.function + ";\n";
  return formula.checks.empty() ? code : code + check(formula, names);
}

}  // namespace tavimor
