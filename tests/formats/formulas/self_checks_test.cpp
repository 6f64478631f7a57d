// The checks of exported C, C++ and Python.
#include "self_checks.h"

namespace tavimor::test {

INSTANTIATE_TEST_SUITE_P(
    Languages, SelfChecks,
    testing::Values(CheckedLanguage{"C", "c", "f.c",
                                    TAVIMOR_CXX " -x c -Wall -Wextra -Werror -DCHECK -ffp-contract=off f.c -o f && ./f",
                                    decimalLiteral},
                    CheckedLanguage{"CPlusPlus", "c++", "f.cpp",
                                    TAVIMOR_CXX " -Wall -Wextra -Werror -DCHECK -ffp-contract=off f.cpp -o f && ./f",
                                    decimalLiteral},
                    CheckedLanguage{"Python", "python", "f.py", "python3 f.py", decimalLiteral}),
    nameOf);

}  // namespace tavimor::test
