// The checks of exported formulas in the languages that few machines have: "./dev test-exports" runs them.
#include "self_checks.h"

namespace tavimor::test {

INSTANTIATE_TEST_SUITE_P(
    Languages, SelfChecks,
    testing::Values(CheckedLanguage{"Fortran", "fortran", "f.f90",
                                    "gfortran -cpp -Wall -Wextra -Werror -Wno-compare-reals -std=f2008 -DCHECK -O2 "
                                    "-ffp-contract=off f.f90 -o f && ./f",
                                    fortranLiteral},
                    CheckedLanguage{"Octave", "octave", "f.m", "octave --no-gui --norc --eval f", decimalLiteral},
                    CheckedLanguage{"R", "r", "f.R", "Rscript f.R", hexadecimalLiteral},
                    CheckedLanguage{"JavaScript", "javascript", "f.js", "node f.js", decimalLiteral},
                    CheckedLanguage{"Gnuplot", "gnuplot", "f.gp", "gnuplot -e check=1 f.gp", decimalLiteral}),
    nameOf);

}  // namespace tavimor::test
