#include "formats/formulas/horner_loops.h"
#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "break case catch classdef continue do else elseif end end_try_catch end_unwind_protect endfor endfunction "
    "endif endparfor endswitch endwhile enumeration events for function global if methods otherwise parfor "
    "persistent properties return spmd switch try until unwind_protect unwind_protect_cleanup while abs all ans "
    "arguments any error fprintf i inf Inf j max nan NaN nargin num2cell pi e reshape size sum sin cos exp log sqrt "
    "differences wrong n disp plot gamma beta";

// A file is called by its function's name, so that the check hangs on a call without arguments.
LanguageNotes notes(const ProgramNames& names) {
  return {.bits = {"It takes numbers and arrays alike and gives the bits of the Evaluations window.",
                   "Save it as " + names.function + ".m"},
          .check = {"To check it: octave --eval " + names.function,
                    "That ends with 0 where no point differs by more than rounding."}};
}

LoopSyntax loops(const ProgramNames& names) {
  const auto assign = [](const std::string& name, const std::string& value) { return name + " = " + value + ";"; };
  return {.declare = assign,
          .assign = assign,
          .open = [](const std::string& power,
                     Long degree) { return "for " + power + " = " + std::to_string(degree + 1) + ":-1:1"; },
          .close = "end",
          .times = " .* ",
          .literal = decimalLiteral,
          .coefficient = [&](const Lines& j) { return names.coef + "(" + firstOutermost(j) + ")"; }};
}

Lines matrix(const Lines& elements, const std::string& name, const std::string& size) {
  Lines lines = {name + " = reshape([ ..."};
  for (const std::string& line : wrapped(elements, "    ")) lines.push_back(line + " ...");
  lines.push_back("  ], " + size + ");");
  return lines;
}

std::string sizeOf(const Formula& formula) {
  if (formula.last() == 0) return "1, " + std::to_string(formula.Coef.extent(0));
  Lines sizes;
  for (Long k = 0; k <= formula.last(); ++k) sizes.push_back(std::to_string(formula.Coef.extent(k)));
  return joined(sizes, ", ");
}

std::string function(const Formula& formula, const ProgramNames& names) {
  const std::string& value = names.s[formula.last()];
  std::string code = "function " + value + " = " + names.function + "(" + names.arguments() + ")\n";
  if (!formula.checks.empty()) code += "  if nargin == 0\n    " + names.check + "();\n    return\n  end\n";
  code += text(matrix(literals(formula.Coef, decimalLiteral), names.coef, sizeOf(formula)), "  ");
  code += text(hornerLoops(formula, names, loops(names), "  "));
  if (formula.outside == Outside::NotANumber)
    code += "  " + value + "(~(" + joined(insideTests(formula, names.x, decimalLiteral), " & ") + " & true(size(" +
            value + ")))) = NaN;\n";
  return code + "end\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  const std::string count = std::to_string(formula.checks.size());
  const std::string row = std::to_string(formula.last() + 3);
  Lines arguments;
  const auto item = [&](Long column) { return names.points + "(" + std::to_string(column) + ", :)"; };
  for (Long k = 0; k <= formula.last(); ++k) arguments.push_back(item(k + 1));
  return "\nfunction " + names.check + "()\n  % each column: the variables, the value, the bound of rounding\n" +
         text(matrix(rowsOf(formula, decimalLiteral), names.points, row + ", " + count), "  ") +
         "  differences = abs(" + names.function + "( ...\n    " + joined(arguments, ", ...\n    ") + ") ...\n    - " +
         item(formula.last() + 2) + ");\n  wrong = sum(~(differences <= " + item(formula.last() + 3) +
         "));\n  fprintf('" + count +
         " points, largest difference %.3g, beyond rounding: %d\\n', max(differences), wrong);\n"
         "  if wrong > 0\n    error('the formula differs by more than rounding');\n  end\nend\n";
}

}  // namespace

std::string octaveFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, kReserved);
  const std::string code = text(remarks(formula, names, notes(names)), "% ") + "\n" + function(formula, names);
  return formula.checks.empty() ? code : code + check(formula, names);
}

}  // namespace tavimor
