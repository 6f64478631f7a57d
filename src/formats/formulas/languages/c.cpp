#include "formats/formulas/languages/c_family.h"
#include "formats/formulas/languages/languages.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "auto break case char const continue default do double else enum extern float for goto if inline int long "
    "register restrict return short signed sizeof static struct switch typedef union unsigned void volatile while "
    "alignas alignof bool constexpr false nullptr static_assert thread_local true typeof typeof_unqual asm fortran "
    "main complex imaginary I NAN INFINITY NULL EOF CHECK errno linux unix acos asin atan atan2 cos sin tan acosh "
    "asinh atanh cosh sinh tanh exp exp2 expm1 frexp ilogb ldexp log log10 log1p log2 logb modf scalbn scalbln cbrt "
    "fabs hypot pow sqrt erf erfc lgamma tgamma gamma ceil floor nearbyint rint lrint llrint round lround llround "
    "trunc fmod remainder remquo copysign nan nextafter nexttoward fdim fmax fmin fma j0 j1 jn y0 y1 yn significand "
    "drem finite isinf isnan isfinite isnormal signbit printf puts putchar getc remove rename stdin stdout stderr "
    "difference largest wrong n p";

}  // namespace

std::string cFormula(const Formula& formula) {
  return cFamilyFormula(
      formula, kReserved,
      {.remarks = {.bits = {"It gives the bits of the Evaluations window where the compiler does not contract a",
                            "multiplication and an addition into one: cc -ffp-contract=off (and no -ffast-math)."},
                   .check = {"To check it: cc -DCHECK -ffp-contract=off FILE.c -lm && ./a.out",
                             "That ends with 0 where no point differs by more than rounding."}},
       .functionHeader = "#include <math.h>\n",
       .checkHeader = "#include <math.h>\n#include <stdio.h>\n",
       .constant = "static const double",
       .absolute = "fabs",
       .print = "printf",
       .notANumber = "(double)NAN"});
}

}  // namespace tavimor
