#include "formats/formulas/languages/c_family.h"

#include "formats/formulas/horner_loops.h"
#include "formats/formulas/number_literal.h"

namespace tavimor {

namespace {

LoopSyntax loops(const ProgramNames& names) {
  return {.declare = [](const std::string& name,
                        const std::string& value) { return "double " + name + " = " + value + ";"; },
          .assign = [](const std::string& name, const std::string& value) { return name + " = " + value + ";"; },
          .open =
              [](const std::string& power, Long degree) {
                return "for (int " + power + " = " + std::to_string(degree) + "; " + power + " >= 0; --" + power +
                       ") {";
              },
          .close = "}",
          .literal = decimalLiteral,
          .coefficient = [&](const Lines& j) { return lastOutermost(names.coef, j); }};
}

std::string extents(const Formula& formula) {
  std::string text;
  for (Long k = formula.last(); k >= 0; --k) text += "[" + std::to_string(formula.Coef.extent(k)) + "]";
  return text;
}

std::string function(const Formula& formula, const ProgramNames& names, const CDialect& dialect) {
  std::string code = dialect.constant + " " + names.coef + extents(formula) + " =\n";
  Lines lists = nestedLists(formula, "{", "}", decimalLiteral, "  ");
  lists.back() += ";";
  code += text(lists) + "\ndouble " + names.function + "(double " + joined(names.x, ", double ") + ")\n{\n";
  if (formula.outside == Outside::NotANumber)
    code += "  if (!(" + joined(insideTests(formula, names.x, decimalLiteral), " && ") + ")) return " +
            dialect.notANumber + ";\n";
  code += text(hornerLoops(formula, names, loops(names), "  "));
  return code + "  return " + names.s[formula.last()] + ";\n}\n";
}

std::string check(const Formula& formula, const ProgramNames& names, const CDialect& dialect) {
  const std::string count = std::to_string(formula.checks.size());
  const std::string row = std::to_string(formula.last() + 3);
  std::string code = "\n#ifdef CHECK\n" + dialect.checkHeader + "\n";
  code += "// each row: the variables, the value, the bound of rounding\n";
  code += dialect.constant + " " + names.points + "[" + count + "][" + row + "] = {\n";
  for (const CheckPoint& point : formula.checks)
    code += "  {" + joined(rowOf(formula, point, decimalLiteral), ", ") + "},\n";
  Lines arguments;
  for (Long k = 0; k <= formula.last(); ++k) arguments.push_back("p[" + std::to_string(k) + "]");
  const std::string value = "p[" + std::to_string(formula.last() + 1) + "]";
  const std::string bound = "p[" + std::to_string(formula.last() + 2) + "]";
  return code + "};\n\nint main(void)\n{\n  double largest = 0.0;\n  int wrong = 0;\n  for (int n = 0; n < " + count +
         "; ++n) {\n    const double *p = " + names.points + "[n];\n    const double difference = " + dialect.absolute +
         "(" + names.function + "(" + joined(arguments, ", ") + ") - " + value +
         ");\n    if (difference > largest) largest = difference;\n    if (!(difference <= " + bound +
         ")) ++wrong;\n  }\n  " + dialect.print + "(\"" + count +
         " points, largest difference %.3g, beyond rounding: %d\\n\", largest, wrong);\n"
         "  return wrong == 0 ? 0 : 1;\n}\n#endif\n";
}

}  // namespace

std::string cFamilyFormula(const Formula& formula, std::string_view reserved, const CDialect& dialect) {
  const ProgramNames names = programNames(formula, reserved);
  std::string code = text(remarks(formula, names, dialect.remarks), "// ") + "\n";
  if (formula.outside == Outside::NotANumber) code += dialect.functionHeader + "\n";
  code += function(formula, names, dialect);
  return formula.checks.empty() ? code : code + check(formula, names, dialect);
}

}  // namespace tavimor
