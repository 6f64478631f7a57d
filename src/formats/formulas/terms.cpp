#include "formats/formulas/terms.h"

#include "model/grid_indices.h"

namespace tavimor {

std::vector<Term> termsOf(const Formula& formula) {
  std::vector<Term> terms;
  std::size_t number = 0;
  forEachIndex(formula.Coef.last(), [&](const PerVariable<Long>& j) {
    if (formula.Coef(j) != 0.0) terms.push_back({j, formula.Coef(j), number});
    ++number;
  });
  if (terms.empty()) terms.push_back({});
  return terms;
}

}  // namespace tavimor
