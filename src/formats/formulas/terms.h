#pragma once

#include <string>
#include <vector>

#include "formats/formulas/formula.h"

namespace tavimor {

/// A term of the formula written out: a coefficient that is not 0, and its powers.
struct Term {
  PerVariable<Long> powers{};
  double coefficient = 0.0;
  std::size_t number = 0;  // its place among all coefficients in memory
};

/// The terms, the first variable's power fastest; the one of all powers 0 is there even where no other is.
std::vector<Term> termsOf(const Formula& formula);

}  // namespace tavimor
