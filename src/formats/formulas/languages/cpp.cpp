#include "formats/formulas/languages/c_family.h"
#include "formats/formulas/languages/languages.h"

namespace tavimor {

namespace {

constexpr std::string_view kReserved =
    "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t char16_t char32_t class "
    "compl concept const consteval constexpr constinit const_cast continue co_await co_return co_yield decltype "
    "default delete do double dynamic_cast else enum explicit export extern false float for friend goto if inline "
    "int long mutable namespace new noexcept not not_eq nullptr operator or or_eq private protected public register "
    "reinterpret_cast requires return short signed sizeof static static_assert static_cast struct switch template "
    "this thread_local throw true try typedef typeid typename union unsigned using virtual void volatile wchar_t "
    "while xor xor_eq main std CHECK NAN INFINITY NULL EOF errno linux unix abs acos asin atan atan2 cos sin tan "
    "acosh asinh atanh cosh sinh tanh exp exp2 expm1 frexp ilogb ldexp log log10 log1p log2 logb modf scalbn "
    "scalbln cbrt fabs hypot pow sqrt erf erfc lgamma tgamma gamma ceil floor nearbyint rint lrint llrint round "
    "lround llround trunc fmod remainder remquo copysign nan nextafter nexttoward fdim fmax fmin fma j0 j1 jn y0 y1 "
    "yn significand drem finite isinf isnan isfinite isnormal signbit printf puts putchar getc remove rename stdin "
    "stdout stderr difference largest wrong p";

}  // namespace

std::string cppFormula(const Formula& formula) {
  return cFamilyFormula(
      formula, kReserved,
      {.remarks = {.bits = {"It gives the bits of the Evaluations window where the compiler does not contract a",
                            "multiplication and an addition into one: c++ -ffp-contract=off (and no -ffast-math)."},
                   .check = {"To check it: c++ -DCHECK -ffp-contract=off FILE.cpp && ./a.out",
                             "That ends with 0 where no point differs by more than rounding."}},
       .functionHeader = "#include <limits>\n",
       .checkHeader = "#include <cmath>\n#include <cstdio>\n",
       .constant = "static constexpr double",
       .absolute = "std::fabs",
       .print = "std::printf",
       .notANumber = "std::numeric_limits<double>::quiet_NaN()"});
}

}  // namespace tavimor
