#include "formats/formulas/horner_loops.h"
#include "formats/formulas/languages/languages.h"
#include "formats/formulas/number_literal.h"
#include "formats/formulas/remarks.h"

namespace tavimor {

namespace {

// Fortran reserves no word; these are the ones that the text uses.
constexpr std::string_view kReserved =
    "abs all any count difference ieee_arithmetic ieee_quiet_nan ieee_value largest max n reshape wrong double "
    "precision integer real end do if print";

const LanguageNotes kNotes = {
    .bits = {"It gives the bits of the Evaluations window where the compiler does not contract a",
             "multiplication and an addition into one: gfortran -ffp-contract=off (and no -ffast-math)."},
    .check = {"To check it: gfortran -cpp -DCHECK -ffp-contract=off FILE.f90 && ./a.out",
              "That ends with 0 where no point differs by more than rounding."}};

LoopSyntax loops(const ProgramNames& names) {
  const auto assign = [](const std::string& name, const std::string& value) { return name + " = " + value; };
  return {.declare = assign,
          .assign = assign,
          .open = [](const std::string& power,
                     Long degree) { return "do " + power + " = " + std::to_string(degree) + ", 0, -1"; },
          .close = "end do",
          .zero = "0.0d0",
          .literal = fortranLiteral,
          .coefficient = [&](const Lines& j) { return names.coef + "(" + firstOutermost(j) + ")"; }};
}

// A constant array from its elements, the first index fastest. Each line but the last goes on.
std::string constantArray(const std::string& name, const Lines& bounds, const Lines& sizes, const Lines& elements,
                          const std::string& indent) {
  Lines lines = {indent + "double precision, parameter :: " + name + "(" + joined(bounds, ", ") + ") = reshape([ &"};
  for (const std::string& line : wrapped(elements, indent + "  ")) lines.push_back(line + " &");
  lines.push_back(indent + "  ], [" + joined(sizes, ", ") + "])");
  return text(lines);
}

std::string coefficients(const Formula& formula, const ProgramNames& names) {
  Lines bounds, sizes;
  for (Long k = 0; k <= formula.last(); ++k) {
    bounds.push_back("0:" + std::to_string(formula.Coef.last()[k]));
    sizes.push_back(std::to_string(formula.Coef.extent(k)));
  }
  return constantArray(names.coef, bounds, sizes, literals(formula.Coef, fortranLiteral), "  ");
}

std::string nanOutside(const Formula& formula, const ProgramNames& names) {
  return "    if (.not. all([" + joined(insideTests(formula, names.x, fortranLiteral), ", &\n      ") +
         "])) then\n      " + names.function + " = ieee_value(0.0d0, ieee_quiet_nan)\n      return\n    end if\n";
}

std::string function(const Formula& formula, const ProgramNames& names) {
  const bool givesNaN = formula.outside == Outside::NotANumber;
  std::string code = "  elemental double precision function " + names.function + "(" + names.arguments() + ")\n";
  if (givesNaN) code += "    use, intrinsic :: ieee_arithmetic, only: ieee_value, ieee_quiet_nan\n";
  code += "    double precision, intent(in) :: " + names.arguments() +
          "\n    double precision :: " + joined(names.t, ", ") + ", " + joined(names.s, ", ") +
          "\n    integer :: " + joined(names.j, ", ") + "\n\n";
  if (givesNaN) code += nanOutside(formula, names);
  code += text(hornerLoops(formula, names, loops(names), "    "));
  return code + "    " + names.function + " = " + names.s[formula.last()] + "\n  end function " + names.function + "\n";
}

std::string check(const Formula& formula, const ProgramNames& names) {
  const std::string count = std::to_string(formula.checks.size());
  const std::string row = std::to_string(formula.last() + 3);
  Lines arguments;
  for (Long k = 0; k <= formula.last(); ++k) arguments.push_back(names.points + "(" + std::to_string(k + 1) + ", n)");
  const auto item = [&](Long column) { return names.points + "(" + std::to_string(column) + ", n)"; };
  return "\n#ifdef CHECK\nprogram " + names.check + "\n  use " + names.module + ", only: " + names.function +
         "\n  implicit none\n  ! each row: the variables, the value, the bound of rounding\n" +
         constantArray(names.points, {row, count}, {row, count}, rowsOf(formula, fortranLiteral), "  ") +
         "  double precision :: difference, largest\n  integer :: n, wrong\n\n  largest = 0.0d0\n  wrong = 0\n  do n = "
         "1, " +
         count + "\n    difference = abs(" + names.function + "( &\n      " + joined(arguments, ", &\n      ") +
         ") &\n      - " + item(formula.last() + 2) +
         ")\n    largest = max(largest, difference)\n    if (.not. difference <= " + item(formula.last() + 3) +
         ") wrong = wrong + 1\n  end do\n  print '(i0, a, es10.3, a, i0)', " + count +
         ", ' points, largest difference ', largest, ', beyond rounding: ', wrong\n  if (wrong > 0) stop 1\nend "
         "program " +
         names.check + "\n#endif\n";
}

}  // namespace

std::string fortranFormula(const Formula& formula) {
  const ProgramNames names = programNames(formula, kReserved, LetterCase::DoesNotMatter);
  const std::string code = text(remarks(formula, names, kNotes), "! ") + "\nmodule " + names.module +
                           "\n  implicit none\n  private\n  public :: " + names.function + "\n\n" +
                           coefficients(formula, names) + "\ncontains\n\n" + function(formula, names) +
                           "\nend module " + names.module + "\n";
  return formula.checks.empty() ? code : code + check(formula, names);
}

}  // namespace tavimor
