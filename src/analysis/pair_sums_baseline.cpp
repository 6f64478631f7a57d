
#include "analysis/digit_scales.h"
#include "analysis/pair_sums.h"
#include "analysis/typed_value.h"

#define TAVIMOR_INLINE [[gnu::always_inline]] inline

namespace tavimor {
namespace {

constexpr std::size_t kLanes = 2;
#include "analysis/vector_registers.inc"

TAVIMOR_INLINE bool areSame(Exponents a, Exponents b) {
  const Exponents difference = a ^ b;
  return (difference[0] | difference[1]) == 0;
}

#include "analysis/split_product.inc"

#include "analysis/pair_sums.inc"

}  // namespace

extern const PairSums kPairSumsBaseline;
const PairSums kPairSumsBaseline = kPairSums;

}  // namespace tavimor
